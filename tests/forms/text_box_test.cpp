// SPDX-License-Identifier: MIT
#include "forms/text_box.h"

#include <gtest/gtest.h>

#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::Variant;

TEST(TextBox, RaisesAChangeForEveryNewText) {
    TextBox box("txtName");
    Counter<> changes(box.changeEvent);
    ChangeRecorder properties(box);
    box.setText("a");
    box.setText("a");
    EXPECT_EQ(changes.take(), 1);
    EXPECT_EQ(properties.take(), Names{"Text"});
}

TEST(TextBox, CountsPositionsInCharacters) {
    TextBox box("txtName");
    box.setText("Größe");
    box.setSelStart(99);
    EXPECT_EQ(box.selStart(), 5);
    box.setSelStart(2);
    box.setSelLength(99);
    EXPECT_EQ(box.selLength(), 3);
}

TEST(TextBox, KeepsTheCaretInsideTheText) {
    TextBox box("txtName");
    box.setText("abc");
    box.setSelStart(-5);
    EXPECT_EQ(box.selStart(), 0);
    box.setSelStart(3);
    box.setText("ab");
    EXPECT_EQ(box.selStart(), 2);
    box.setSelLength(-1);
    EXPECT_EQ(box.selLength(), 0);
}

TEST(TextBox, ANewPositionEndsTheSelection) {
    TextBox box("txtName");
    box.setText("abc");
    box.setSelStart(1);
    box.setSelLength(2);
    ChangeRecorder properties(box);
    box.setSelStart(1);
    EXPECT_EQ(box.selLength(), 0);
    EXPECT_EQ(properties.take(), Names{"SelStart"});
}

TEST(TextBox, TakesTheCaretThatTheViewReportsAheadOfTheText) {
    TextBox box("txtName");
    box.setText("ab");
    ChangeRecorder properties(box);
    box.caretReported(3, 0);
    box.setText("abc");
    EXPECT_EQ(box.selStart(), 3);
    EXPECT_EQ(properties.take(), Names{"Text"});
}

// As a limit of length does it: the text is cut while its change is being reported.
TEST(TextBox, AHandlerMayChangeTheTextAgain) {
    TextBox box("txtFileExtension");
    box.changeEvent.connect([&] {
        if (box.text().size() <= 2) return;
        box.setText(box.text().substr(0, 2));
        box.setSelStart(2);
    });
    box.setText("rc");
    box.caretReported(3, 0);
    box.setText("rcp");
    EXPECT_EQ(box.text(), "rc");
    EXPECT_EQ(box.selStart(), 2);
}

TEST(TextBox, HasOneOfTwoColoursOfTheSystem) {
    TextBox box("txtName");
    box.set("BackColor", Variant(15));
    EXPECT_EQ(box.backColor(), SystemColor::buttonFace);
    EXPECT_EQ(support::errorNumber([&] { box.set("BackColor", Variant(6)); }), automation::errOverflow);
    EXPECT_EQ(box.backColor(), SystemColor::buttonFace);
}

}  // namespace
}  // namespace hx::forms
