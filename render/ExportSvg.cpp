#include <algorithm>
#include <cmath>

#include "render/Decimal.h"
#include "render/Export.h"

namespace linewright {

namespace {

/** Digits behind the point of bars' sides; curves need fewer. */
constexpr int kBarDigits = 4;

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char byte : text) {
        switch (byte) {
            case '&': escaped += "&amp;"; break;
            case '<': escaped += "&lt;"; break;
            case '>': escaped += "&gt;"; break;
            default: escaped += byte;
        }
    }
    return escaped;
}

/** Takes down numbers of path data with no more between them than they need. */
class PathData {
  public:
    explicit PathData(int digits) : curveDigits(digits) {}

    void Command(char letter) {
        if (letter == last && letter != 'M') return;
        data += letter;
        last = letter;
        isAfterNumber = false;
    }

    void Number(double number, int digits) {
        std::string text = Decimal(number, digits);
        if (text.starts_with("0.")) text.erase(0, 1);
        if (text.starts_with("-0.")) text.erase(1, 1);
        if (isAfterNumber && text.front() != '-') data += ' ';
        data += text;
        isAfterNumber = true;
    }

    /** A move, line or curve by the distances from where the numbers so far have led. */
    void Step(const PathStep& step) {
        const Point start = reached;
        const double x = Rounded(step.end.x - start.x);
        const double y = Rounded(step.end.y - start.y);
        switch (step.kind) {
            case PathStep::Kind::kMove: Command('M'); break;
            case PathStep::Kind::kCurve:
                Command('q');
                Number(step.control.x - start.x, curveDigits);
                Number(step.control.y - start.y, curveDigits);
                break;
            case PathStep::Kind::kLine: Command(x == 0 ? 'v' : y == 0 ? 'h' : 'l'); break;
        }
        if (last != 'v') Number(x, curveDigits);
        if (last != 'h') Number(y, curveDigits);
        reached = {start.x + x, start.y + y};
    }

    void Close() {
        Command('z');
        reached = {};
    }

    std::string data;

  private:
    double Rounded(double number) const {
        const double parts = std::pow(10, curveDigits);
        return std::round(number * parts) / parts;
    }

    int curveDigits;
    Point reached;
    bool isAfterNumber = false;
    char last = 0;
};

/** As many as tell parts of 0.03 points apart. */
int CurveDigits(double unit) {
    constexpr double kPart = 0.03;
    return std::max(0, static_cast<int>(std::ceil(std::log10(unit / kPart))));
}

std::string PathOf(const Shapes& shapes) {
    PathData path(CurveDigits(shapes.unit));
    for (const Rectangle& bar : shapes.bars) {
        path.Command('M');
        path.Number(bar.left, kBarDigits);
        path.Number(bar.top, kBarDigits);
        path.Command('H');
        path.Number(bar.right, kBarDigits);
        path.Command('V');
        path.Number(bar.bottom, kBarDigits);
        path.Command('H');
        path.Number(bar.left, kBarDigits);
        path.Close();
    }
    for (const PathStep& step : shapes.outline) {
        if (step.kind == PathStep::Kind::kMove && &step != shapes.outline.data()) path.Close();
        path.Step(step);
    }
    if (!shapes.outline.empty()) path.Close();
    return path.data;
}

}  // namespace

std::string SvgOf(const BarcodeDrawing& drawing, const ExportOptions& options) {
    const Shapes shapes = drawing.Drawn();
    const auto millimetres = [&](double length) {
        return Decimal(length * shapes.unit / kMillimetre, 5) + "mm";
    };
    const std::string size =
        Decimal(shapes.width, kBarDigits) + ' ' + Decimal(shapes.height, kBarDigits);
    std::string file = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                       millimetres(shapes.width) + "\" height=\"" + millimetres(shapes.height) +
                       "\" viewBox=\"0 0 " + size + "\" shape-rendering=\"crispEdges\">\n";
    file += "<title>" + Escaped(options.title) + "</title>\n";
    // Layout programs take what is inked for the size where nothing is as large as the page.
    file += "<path fill=\"none\" d=\"M0 0H" + Decimal(shapes.width, kBarDigits) + "V" +
            Decimal(shapes.height, kBarDigits) + "H0z\"/>\n";
    return file + "<path d=\"" + PathOf(shapes) + "\"/>\n</svg>\n";
}

}  // namespace linewright
