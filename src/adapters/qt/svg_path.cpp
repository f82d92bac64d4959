// SPDX-License-Identifier: MIT
#include "adapters/qt/svg_path.h"

#include <QRegularExpression>
#include <QtMath>
#include <array>
#include <cmath>

namespace hx::qt {

namespace {

/// How many numbers a command takes; -1 for one that is not known.
int numbersOf(char command) {
    switch (command) {
        case 'z': return 0;
        case 'h':
        case 'v': return 1;
        case 'm':
        case 'l': return 2;
        case 'c': return 6;
        case 'a': return 7;
        default: return -1;
    }
}

/// Angle of a point around the middle of a circle of radius 1.
double angleOf(QPointF point) { return std::atan2(point.y(), point.x()); }

/// The arc from where the path ends to `end`, on an ellipse of at least these radii. Of the four that there are, the
/// flags choose one.
void addArc(QPainterPath& path, QPointF radii, bool large, bool clockwise, QPointF end) {
    const QPointF start = path.currentPosition();
    if (radii.x() == 0 || radii.y() == 0) return path.lineTo(end);
    // In a plane where the ellipse is a circle of radius 1.
    QPointF half((start.x() - end.x()) / 2 / radii.x(), (start.y() - end.y()) / 2 / radii.y());
    if (const double distance = std::hypot(half.x(), half.y()); distance > 1) {
        radii *= distance;
        half /= distance;
    }
    const double square = QPointF::dotProduct(half, half);
    if (square == 0) return;
    const double away = (large == clockwise ? -1 : 1) * std::sqrt(std::max(0.0, 1 / square - 1));
    const QPointF middle(half.y() * away, -half.x() * away);
    const double from = angleOf(half - middle);
    double turn = angleOf(-half - middle) - from;
    if (clockwise && turn < 0) turn += 2 * M_PI;
    if (!clockwise && turn > 0) turn -= 2 * M_PI;
    // Where a point of the circle lies on the ellipse.
    const auto place = [&](double x, double y) {
        return (start + end) / 2 + QPointF((middle.x() + x) * radii.x(), (middle.y() + y) * radii.y());
    };
    // A quarter is one curve, whatever rounding adds to it: a line that is wide looks different along two.
    constexpr double quarter = M_PI_2 + 0.001;
    const int curves = std::max(1, static_cast<int>(std::ceil(std::abs(turn) / quarter)));
    const double reach = 4.0 / 3 * std::tan(turn / curves / 4);
    for (int i = 1; i <= curves; ++i) {
        const double a = from + turn * (i - 1) / curves, b = from + turn * i / curves;
        path.cubicTo(place(std::cos(a) - reach * std::sin(a), std::sin(a) + reach * std::cos(a)),
                     place(std::cos(b) + reach * std::sin(b), std::sin(b) - reach * std::cos(b)),
                     i == curves ? end : place(std::cos(b), std::sin(b)));
    }
}

/// `numbers` are what the command takes, points in them beside `origin`.
void add(QPainterPath& path, char command, QPointF origin, const std::array<double, 7>& numbers) {
    const auto point = [&](std::size_t i) { return origin + QPointF(numbers[i], numbers[i + 1]); };
    switch (command) {
        case 'm': return path.moveTo(point(0));
        case 'l': return path.lineTo(point(0));
        case 'h': return path.lineTo(origin.x() + numbers[0], path.currentPosition().y());
        case 'v': return path.lineTo(path.currentPosition().x(), origin.y() + numbers[0]);
        case 'c': return path.cubicTo(point(0), point(2), point(4));
        case 'a':
            return addArc(path, {std::abs(numbers[0]), std::abs(numbers[1])}, numbers[3] != 0, numbers[4] != 0,
                          point(5));
        default: return path.closeSubpath();
    }
}

}  // namespace

QPainterPath svgPath(const QString& text) {
    static const QRegularExpression token(
        QStringLiteral("([A-Za-z])|([-+]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][-+]?\\d+)?)"));
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    char command = 0;
    std::array<double, 7> numbers{};
    int given = 0;
    for (auto tokens = token.globalMatch(text); tokens.hasNext();) {
        const QRegularExpressionMatch found = tokens.next();
        if (found.hasCaptured(1)) {
            command = found.captured(1).at(0).toLatin1();
            given = 0;
        } else {
            if (command == 0) break;
            numbers[static_cast<std::size_t>(given++)] = found.captured(2).toDouble();
        }
        const char kind = static_cast<char>(std::tolower(command));
        const int wanted = numbersOf(kind);
        if (wanted < 0 || (wanted == 0 && given > 0)) break;
        if (given < wanted) continue;
        add(path, kind, command == kind ? path.currentPosition() : QPointF(), numbers);
        given = 0;
        if (kind == 'm') command = command == kind ? 'l' : 'L';  // the points behind the first are lines
    }
    return path;
}

}  // namespace hx::qt
