// SPDX-License-Identifier: MIT
#include <QLocale>
#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "adapters/qt/text.h"
#include "settings/cinit.h"
#include "support/memory_provider.h"

namespace hx::gui {
namespace {

using automation::Variant;

TEST(Locales, ANumberInTheSettingsComesBackInEachOneThatThereIs) {
    support::MemoryProvider provider;
    headless::Host host{provider};
    const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(locales.size(), 100);
    for (const QLocale& locale : locales) {
        const automation::NumberFormat format{qt::fromQt(locale.decimalPoint())};
        const auto open = [&] {
            auto inits = std::make_shared<settings::CInit>(host.services().iniFile, format);
            inits->LoadDefaultInit("frmtabGridRCP");
            return inits;
        };
        const auto written = open();
        written->WriteAValueToCInits("Me.Font.Size", Variant(11.75));
        written->SaveInits("HXEditors.ini");
        const auto read = open();
        read->LoadInits("HXEditors.ini");
        EXPECT_EQ(read->ReadAValueFromCInits("Me.Font.Size", Variant()), Variant(11.75)) << qPrintable(locale.name());
    }
}

}  // namespace
}  // namespace hx::gui
