#include <gtest/gtest.h>

#include <QFont>
#include <QFontMetrics>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include "host/runtime/Paths.h"
#include "views/ResourceDescription.h"

namespace linewright {

namespace {

/** What the dialogs are said to be for another host, and a face to set their texts in. */
class StatedLayoutTest : public testing::TestWithParam<const char*> {
  protected:
    StatedLayoutTest()
        : told(QJsonDocument::fromJson(QByteArray::fromStdString(DescribeResources(
                                           host::PathFromUtf8(LINEWRIGHT_PLUGIN), "1")))
                   .object()),
          strings(told["strings"][Locale()].toObject()) {
        font.setPixelSize(12);
    }

    static QString Locale() { return QString::fromLatin1(GetParam()); }

    QString TextOf(const QString& key) const {
        EXPECT_TRUE(strings.contains(key)) << qUtf8Printable(key);
        return strings[key].toString();
    }

    static QSize RoomIn(const QJsonValue& widget) {
        const QJsonObject box = widget["boxes"][Locale()].toObject();
        EXPECT_FALSE(box.isEmpty());
        return {box["width"].toInt(), box["height"].toInt()};
    }

    void ExpectRoom(QString text, QSize room, int beside) const {
        const QFontMetrics metrics(font);
        EXPECT_LE(metrics.horizontalAdvance(text.remove('&')) + beside, room.width())
            << qUtf8Printable(text);
        EXPECT_LE(metrics.height(), room.height()) << qUtf8Printable(text);
    }

    QJsonObject told;
    QJsonObject strings;
    QFont font{QStringLiteral("DejaVu Sans")};
};

INSTANTIATE_TEST_SUITE_P(Locales, StatedLayoutTest, testing::Values("enUS", "deDE", "frFR", "jaJP"),
                         [](const auto& locale) { return std::string(locale.param); });

TEST_P(StatedLayoutTest, NoTextIsClipped) {
    // Pixels that a widget of a kind needs beside its text, at the least
    const QMap<QString, int> beside{{"label", 0}, {"checkBox", 20}, {"button", 16}, {"popUp", 30}};
    int texts = 0;
    for (const QJsonValue dialog : told["dialogs"].toArray()) {
        for (const QJsonValue group : dialog["groups"].toArray())
            if (group["title"].isString())
                ExpectRoom(TextOf(group["title"].toString()), RoomIn(group), 16);
        for (const QJsonValue widget : dialog["widgets"].toArray()) {
            const QString kind = widget["kind"].toString();
            if (!beside.contains(kind) || !widget["visible"].toBool()) continue;
            QStringList keys;
            for (const QJsonValue item : widget["items"].toArray()) keys += item.toString();
            if (widget["text"].isString()) keys += widget["text"].toString();
            if (keys.isEmpty()) keys = strings.keys().filter("UtilityTypePopupItem");
            for (const QString& key : keys) ExpectRoom(TextOf(key), RoomIn(widget), beside[kind]);
            texts += static_cast<int>(keys.size());
        }
    }
    EXPECT_EQ(texts, 17 + 39);
}

}  // namespace

}  // namespace linewright
