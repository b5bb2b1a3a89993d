#include "workbench/Icon.h"

#include <QPainter>
#include <QPixmap>
#include <array>

namespace linewright {

namespace {

constexpr int kParts = 16;
/** Where bars stand, in sixteenths of the icon, and how wide they are. */
constexpr std::array<std::array<int, 2>, 5> kBars{{{3, 1}, {5, 2}, {8, 1}, {10, 1}, {12, 1}}};

QPixmap Drawn(int size) {
    constexpr int kTop = 3;
    constexpr int kHeight = 10;
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    const int part = size / kParts;
    painter.drawRoundedRect(picture.rect(), 2 * part, 2 * part);
    for (const auto& [place, width] : kBars)
        painter.fillRect(place * part, kTop * part, width * part, kHeight * part, Qt::black);
    return picture;
}

}  // namespace

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256}) icon.addPixmap(Drawn(size));
    return icon;
}

}  // namespace linewright
