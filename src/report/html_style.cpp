// SPDX-License-Identifier: MIT
#include "report/html_style.h"

namespace hx::report {

const std::string_view htmlStyle = R"css(
:root { --ink: #1d2733; --muted: #5b6b7b; --line: #d5dde5; --accent: #1f5c8b; --tint: #eef4f9; --warn: #9a3412; }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 60rem; padding: 2rem 1.5rem 4rem; color: var(--ink); background: #fff;
  font: 15px/1.45 Arial, "Liberation Sans", Helvetica, sans-serif; }
h1 { margin: 0 0 1rem; font-size: 2rem; color: var(--accent); }
h2 { margin: 2.5rem 0 .75rem; padding: .4rem .7rem; font-size: 1.25rem; background: var(--tint);
  border-left: .3rem solid var(--accent); overflow-wrap: anywhere; }
h3 { margin: 1.1rem 0 .35rem; font-size: 1rem; color: var(--accent); }
a { color: var(--accent); text-decoration: none; }
a:hover, a:focus { text-decoration: underline; }
.number, .count { color: var(--muted); font-weight: normal; }
.number { margin-right: .5rem; }
.off { margin-left: .5rem; padding: .05rem .5rem; border: 1px solid var(--line); border-radius: .7rem; font-size: .8rem;
  font-weight: normal; color: var(--muted); background: #fff; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: .22rem .5rem; border-bottom: 1px solid var(--line); text-align: left; vertical-align: top;
  overflow-wrap: anywhere; white-space: pre-line; }
th { width: 34%; font-weight: normal; color: var(--muted); }
.unset, .none, .via { color: var(--muted); }
ul, ol { margin: 0; padding: 0; list-style: none; }
li { overflow-wrap: anywhere; }
.contents { columns: 2; column-gap: 2rem; }
.contents li { padding: .1rem 0; break-inside: avoid; }
.switches, .variables { display: grid; grid-template-columns: repeat(auto-fill, minmax(17rem, 1fr)); gap: .15rem 1.5rem; }
.switches li::before { content: "☐"; display: inline-block; width: 1.4rem; color: var(--muted); }
.switches li.on::before { content: "☑"; color: var(--accent); }
.switches li.off-switch { color: var(--muted); }
.tree ul { margin-left: .45rem; padding-left: 1.1rem; border-left: 1px solid var(--line); }
.tree li { padding: .1rem 0; }
.file { margin-left: .6rem; color: var(--muted); }
.mark { margin-left: .5rem; padding: 0 .45rem; border-radius: .7rem; font-size: .8rem; color: var(--muted);
  border: 1px solid var(--line); }
.mark.cycle, .mark.missing { color: var(--warn); border-color: currentColor; }
.missing-name { color: var(--warn); }
.findings { padding: .6rem .9rem; border-left: .3rem solid var(--warn); background: #fdf3ec; }
.visually-hidden { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%);
  white-space: nowrap; }
@page { size: A4; margin: 18mm 15mm 18mm 20mm; @bottom-right { content: counter(page) " / " counter(pages); } }
@media print {
  body { max-width: none; padding: 0; font-size: 10pt; }
  h2, h3 { break-after: avoid; }
  tr, li { break-inside: avoid; }
  h2 { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
}
)css";

}  // namespace hx::report
