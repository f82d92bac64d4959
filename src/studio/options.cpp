// SPDX-License-Identifier: MIT
#include "studio/options.h"

#include <QCommandLineParser>

#include "adapters/qt/wording.h"

namespace hx::studio {

namespace {

void readLanguage(const QString& name, Options& options) {
    if (name == QStringLiteral("de")) options.language = qt::Wording::german;
    else if (name == QStringLiteral("en")) options.language = qt::Wording::english;
    else options.error = QStringLiteral("--lang takes de or en, not \"%1\"").arg(name);
}

}  // namespace

Options parseOptions(const QStringList& arguments) {
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    const QCommandLineOption config(QStringLiteral("config"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption language(QStringLiteral("lang"), QString(), QStringLiteral("de|en"));
    QCommandLineParser parser;
    const QCommandLineOption empty(QStringLiteral("empty"));
    parser.addOptions({help, version, config, language, empty});
    Options options;
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    options.help = parser.isSet(help);
    options.empty = parser.isSet(empty);
    options.version = parser.isSet(version);
    options.configFolder = parser.value(config);
    if (parser.isSet(language)) readLanguage(parser.value(language), options);
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) options.error = QStringLiteral("Only one project can be opened at a time");
    options.file = files.value(0);
    return options;
}

QString usageText() {
    return QStringLiteral(
        "Usage: HelvixStudio [--config DIR] [--lang de|en] [--empty] [FILE]\n"
        "Opens the studio, and in it the project FILE (*.hxs), or the one that was open last.\n\n"
        "  --config DIR   keep registry, window and list of projects in DIR\n"
        "  --lang de|en   German or English, from now on\n"
        "  --empty        without the project that was open last\n"
        "  -h, --help     this text\n"
        "  -v, --version  the version\n");
}

QString versionText() { return QStringLiteral("HelvixStudio " HX_VERSION); }

}  // namespace hx::studio
