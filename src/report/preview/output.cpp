// SPDX-License-Identifier: MIT
#include "report/preview/output.h"

#include <QIODevice>
#include <QPageLayout>
#include <QPdfWriter>
#include <functional>
#include <optional>

#include "adapters/qt/text.h"
#include "automation/error.h"
#include "hosting/file_bytes.h"
#include "hosting/file_place.h"
#include "hosting/file_replacement.h"
#include "report/html_writer.h"
#include "report/preview/face.h"

namespace hx::report {

namespace {

/// A file that takes its place when it is whole, as a device to write on.
class ReplacementDevice : public QIODevice {
  public:
    explicit ReplacementDevice(hosting::FileReplacement& file) : file_(file) { open(WriteOnly | Unbuffered); }
    [[nodiscard]] bool isSequential() const override { return true; }
    /// What went wrong first: who writes on a device does not look after each part.
    [[nodiscard]] const std::optional<automation::Error>& error() const noexcept { return error_; }

  protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 size) override {
        if (error_) return -1;
        try {
            file_.write({bytes, static_cast<std::size_t>(size)});
            return size;
        } catch (const automation::Error& error) {
            error_ = error;
            return -1;
        }
    }

  private:
    hosting::FileReplacement& file_;
    std::optional<automation::Error> error_;
};

constexpr automation::Sentence noPage{"no page can be drawn", "es lässt sich keine Seite zeichnen"};

// Fills a file and puts it in its place; why not, empty when it is done.
QString save(const QString& path, automation::Language language,
             const std::function<void(hosting::FileReplacement&)>& fill) {
    try {
        hosting::FileReplacement file(hosting::fileSystemPath(qt::fromQt(path)));
        fill(file);
        file.publish();
        return {};
    } catch (const automation::Error& error) {
        return qt::toQt(error.description(language));
    }
}

}  // namespace

QSizeF usualPaper() { return QSizeF(QPageSize(QPageSize::A4).size(QPageSize::Point)) * twipsPerPoint; }

void layOutAll(Pages& pages, const Progress& progress) {
    while (!pages.complete()) {
        pages.layOutPart();
        progress(static_cast<std::int64_t>(pages.partsLaidOut()), static_cast<std::int64_t>(pages.parts()));
    }
}

bool paintPages(const Pages& pages, PageRange range, QPagedPaintDevice& device, const Progress& progress) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(static_cast<double>(device.logicalDpiX()) / twipsPerInch,
                  static_cast<double>(device.logicalDpiY()) / twipsPerInch);
    for (int page = range.first; page <= range.last; ++page) {
        if (page > range.first && !device.newPage()) return false;
        pages.paint(painter, page);
        progress(page - range.first + 1, range.last - range.first + 1);
    }
    return painter.end();
}

QString savePdf(const Report& report, const Pages& pages, PageRange range, const QString& path,
                const Progress& progress) {
    return save(path, report.texts().wording(), [&](hosting::FileReplacement& file) {
        ReplacementDevice device(file);
        bool painted = false;
        {
            QPdfWriter writer(&device);
            writer.setResolution(static_cast<int>(twipsPerInch));
            writer.setTitle(qt::toQt(report.fullTitle()));
            writer.setCreator(QStringLiteral("HXProjectReport"));
            writer.setPageLayout(
                {QPageSize(pages.paper() / twipsPerPoint, QPageSize::Point), QPageLayout::Portrait, QMarginsF()});
            painted = paintPages(pages, range, writer, progress);
        }
        if (device.error()) throw *device.error();
        if (!painted)
            hosting::failWith(hosting::sentence::notWritten, hosting::fileSystemPath(qt::fromQt(path)), noPage);
    });
}

QString saveHtml(const Report& report, const QString& path, const Progress& progress) {
    const auto total = static_cast<std::int64_t>(std::max<std::size_t>(1, report.recipes().size()));
    return save(path, report.texts().wording(), [&](hosting::FileReplacement& file) {
        writeHtml(report, [&](std::string_view part, std::size_t recipes) {
            file.write(part);
            progress(static_cast<std::int64_t>(recipes), total);
        });
    });
}

}  // namespace hx::report
