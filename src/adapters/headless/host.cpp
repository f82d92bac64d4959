// SPDX-License-Identifier: MIT
#include "adapters/headless/host.h"

namespace hx::headless {

namespace {

// The studio's area of documents, away from the corner so that distances to it differ from places on the screen.
constexpr host::window::Rect hostArea{100, 50, 1380, 850};

}  // namespace

Host::Host(ado::Provider& database, HostOptions options)
    : screen(script, record, windows),
      help(record),
      components(record),
      items(script, record),
      folders(script, record),
      explorer(windows.add(hostArea), clipboard, options.project),
      services_{.screen = screen,
                .database = database,
                .registry = options.registry != nullptr ? *options.registry : registry,
                .iniFile = options.iniFile != nullptr ? *options.iniFile : iniFile,
                .clipboard = clipboard,
                .help = help,
                .windows = windows,
                .components = components,
                .items = items,
                .folders = folders,
                .paths = host::PathStyle(options.separator),
                .numberFormat = {options.decimalPoint},
                .moduleFile = options.moduleFile} {}

}  // namespace hx::headless
