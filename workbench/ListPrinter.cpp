#include "workbench/ListPrinter.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "types/Dimensions.h"

namespace linewright {

namespace {

constexpr double kTextSize = 7;
constexpr double kLeading = 1.4;
/** Around a barcode and its line, in points. */
constexpr double kGap = 12;

QPainterPath PathOf(const Outline& outline) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const PathStep& step : outline) {
        const QPointF end(step.end.x, step.end.y);
        switch (step.kind) {
            case PathStep::Kind::kMove: path.moveTo(end); break;
            case PathStep::Kind::kLine: path.lineTo(end); break;
            case PathStep::Kind::kCurve: path.quadTo({step.control.x, step.control.y}, end); break;
        }
    }
    return path;
}

/** Goes over pages from the left to the right and down. Lengths are dots of the printer. */
class PagePainter {
  public:
    explicit PagePainter(QPrinter& target) : printer(target), painter(&target) {
        dots = printer.resolution() / kInch;
        page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
        QFont font(QStringLiteral("DejaVu Sans Mono"));
        font.setPointSizeF(kTextSize);
        painter.setFont(font);
        painter.setPen(Qt::black);
        line = kTextSize * kLeading * dots;
    }

    /** False where the barcode is larger than a page. */
    bool Add(const DrawnRow& row) {
        const Shapes shapes = row.drawing.InDots(row.drawing.Module() * dots);
        const double height = line + shapes.height + kGap * dots;
        if (shapes.width > page.width() || height > page.height()) return false;
        if (x > 0 && x + shapes.width > page.width()) BreakLine();
        if (y + height > page.height()) BreakPage();
        const QString text =
            QStringLiteral("%1  %2").arg(row.number).arg(QString::fromStdString(row.data));
        WriteLine(text, shapes.width);
        painter.save();
        // On whole dots, as the shapes are.
        painter.translate(std::ceil(x), std::ceil(y + line));
        for (const Rectangle& bar : shapes.bars) {
            painter.fillRect(QRectF(bar.left, bar.top, bar.right - bar.left, bar.Height()),
                             Qt::black);
        }
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(PathOf(shapes.outline), Qt::black);
        painter.restore();
        x += shapes.width + kGap * dots;
        lineHeight = std::max(lineHeight, height);
        return true;
    }

    void AddLines(const QStringList& lines) {
        if (lines.isEmpty()) return;
        BreakLine();
        for (const QString& text : lines) {
            if (y + line > page.height()) BreakPage();
            WriteLine(text, page.width());
            y += line;
        }
    }

  private:
    void WriteLine(const QString& text, double width) {
        painter.drawText(
            QRectF(x, y, width, line), Qt::AlignLeft | Qt::AlignTop,
            painter.fontMetrics().elidedText(text, Qt::ElideRight, static_cast<int>(width)));
    }
    void BreakLine() {
        y += lineHeight;
        x = 0;
        lineHeight = 0;
    }
    void BreakPage() {
        printer.newPage();
        x = y = lineHeight = 0;
    }

    QPrinter& printer;
    QPainter painter;
    /** A point has so many. */
    double dots = 1;
    QSizeF page;
    double line = 0;
    double x = 0;
    double y = 0;
    double lineHeight = 0;
};

}  // namespace

void PrintList(QPrinter& printer, const ListPages& pages) {
    PagePainter painter(printer);
    QStringList refused = pages.refused;
    for (const DrawnRow& row : pages.rows) {
        if (painter.Add(row)) continue;
        refused << pages.tooLarge.arg(row.number).arg(QString::fromStdString(row.data));
    }
    if (!refused.isEmpty()) refused.prepend(pages.refusedTitle.arg(refused.size()));
    painter.AddLines(refused);
}

}  // namespace linewright
