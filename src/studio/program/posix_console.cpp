// SPDX-License-Identifier: MIT
#include <cstdio>

#include "studio/program/console.h"

namespace hx::studio {

QStringList commandLine(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

void answer(const QString& text) { std::printf("%s", qPrintable(text)); }
void complain(const QString& text) { std::fprintf(stderr, "%s", qPrintable(text)); }

}  // namespace hx::studio
