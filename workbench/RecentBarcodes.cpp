#include "workbench/RecentBarcodes.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

constexpr auto kRecentKey = "recent/barcodes";
constexpr std::size_t kMostTypes = 4;

QString JsonOf(const BarcodeWish& wish) {
    const QJsonObject object{
        {QStringLiteral("type"), QString::fromStdString(wish.type)},
        {QStringLiteral("data"), QString::fromStdString(wish.data)},
        {QStringLiteral("check"), wish.checkCharacter != 0},
        {QStringLiteral("ratio"), wish.ratio},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

BarcodeWish WishOf(const QString& json) {
    const QJsonObject object = QJsonDocument::fromJson(json.toUtf8()).object();
    return {
        .type = object.value(QLatin1String("type")).toString().toStdString(),
        .data = object.value(QLatin1String("data")).toString().toStdString(),
        .checkCharacter = static_cast<uint8>(object.value(QLatin1String("check")).toBool() ? 1 : 0),
        .ratio = object.value(QLatin1String("ratio")).toDouble(2.0)};
}

}  // namespace

std::vector<BarcodeWish> RecentBarcodes::All() const {
    std::vector<BarcodeWish> wishes;
    for (const QString& json : settings.value(QLatin1String(kRecentKey)).toStringList()) {
        BarcodeWish wish = WishOf(json);
        if (FindTypeByPrefix(wish.type) != nullptr) wishes.push_back(std::move(wish));
    }
    return wishes;
}

void RecentBarcodes::Add(const BarcodeWish& wish) {
    // What another window has added meanwhile stays.
    settings.sync();
    std::vector<BarcodeWish> wishes = All();
    const auto same = [&](const BarcodeWish& other) { return JsonOf(other) == JsonOf(wish); };
    wishes.erase(std::remove_if(wishes.begin(), wishes.end(), same), wishes.end());
    wishes.insert(wishes.begin(), wish);
    if (wishes.size() > kMost) wishes.resize(kMost);
    Store(wishes);
}

void RecentBarcodes::Clear() {
    Store({});
}

std::vector<const BarcodeType*> RecentBarcodes::Types() const {
    std::vector<const BarcodeType*> types;
    for (const BarcodeWish& wish : All()) {
        const BarcodeType* const type = FindTypeByPrefix(wish.type);
        if (std::find(types.begin(), types.end(), type) == types.end()) types.push_back(type);
        if (types.size() == kMostTypes) break;
    }
    return types;
}

void RecentBarcodes::Store(const std::vector<BarcodeWish>& wishes) {
    QStringList list;
    for (const BarcodeWish& wish : wishes) list << JsonOf(wish);
    settings.setValue(QLatin1String(kRecentKey), list);
    settings.sync();
}

}  // namespace linewright
