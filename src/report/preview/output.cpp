#include "report/preview/output.h"

#include <QPageLayout>
#include <QPdfWriter>
#include <QSaveFile>

#include "adapters/qt/text.h"
#include "report/html_writer.h"

namespace hx::report {

namespace {

constexpr int twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;

// A device that shows nothing on a full disk says so only at the end.
QString commit(QSaveFile& file) { return file.commit() ? QString() : file.errorString(); }

}  // namespace

QSizeF usualPaper() { return QSizeF(QPageSize(QPageSize::A4).size(QPageSize::Point)) * twipsPerPoint; }

bool paintPages(const Pages& pages, PageRange range, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(static_cast<double>(device.logicalDpiX()) / twipsPerInch,
                  static_cast<double>(device.logicalDpiY()) / twipsPerInch);
    for (int page = range.first; page <= range.last; ++page) {
        if (page > range.first && !device.newPage()) return false;
        pages.paint(painter, page);
    }
    return painter.end();
}

QString savePdf(const Report& report, const Pages& pages, PageRange range, const QString& path) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    {
        QPdfWriter writer(&file);
        writer.setResolution(twipsPerInch);
        writer.setTitle(qt::toQt(report.fullTitle()));
        writer.setCreator(QStringLiteral("HXProjectReport"));
        writer.setPageLayout(
            {QPageSize(pages.paper() / twipsPerPoint, QPageSize::Point), QPageLayout::Portrait, QMarginsF()});
        if (!paintPages(pages, range, writer)) {
            file.cancelWriting();
            return file.errorString();
        }
    }
    return commit(file);
}

QString saveHtml(const Report& report, const QString& path) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    writeHtml(report, [&file](std::string_view part) { file.write(part.data(), static_cast<qint64>(part.size())); });
    return commit(file);
}

}  // namespace hx::report
