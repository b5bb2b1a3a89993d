#include "requests/RefusedCharacter.h"

#include <vector>

namespace linewright {

namespace {

bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/** Where the data's characters begin, and its end. */
std::vector<std::size_t> CharacterStarts(const BarcodeWish& wish) {
    std::vector<std::size_t> starts;
    starts.reserve(wish.data.size() + 1);
    for (std::size_t i = 0; i < wish.data.size(); ++i) {
        if (!wish.isUtf8 || !ContinuesCharacter(wish.data[i])) starts.push_back(i);
    }
    starts.push_back(wish.data.size());
    return starts;
}

}  // namespace

std::optional<std::size_t> RefusedCharacter(Service& service, const BarcodeWish& wish,
                                            const BarcodeOutcome& outcome) {
    if (outcome.IsMade() || !outcome.status || outcome.type == nullptr) return std::nullopt;
    const std::vector<std::size_t> starts = CharacterStarts(wish);
    const std::size_t count = starts.size() - 1;
    EncodeRequest request{.typeName = outcome.typeName,
                          .data = {},
                          .isUtf8 = wish.isUtf8,
                          .checkCharacter = wish.checkCharacter,
                          .ratio = wish.ratio};
    const auto isRefusedWith = [&](std::size_t characters) {
        request.data = wish.data.substr(0, starts[characters]);
        request.data.append(count - characters, '0');
        return service.Encode(request).status == *outcome.status;
    };
    if (count == 0 || isRefusedWith(0) || !isRefusedWith(count)) return std::nullopt;
    std::size_t accepted = 0;
    std::size_t refused = count;
    while (refused - accepted > 1) {
        const std::size_t middle = accepted + (refused - accepted) / 2;
        (isRefusedWith(middle) ? refused : accepted) = middle;
    }
    return starts[accepted];
}

}  // namespace linewright
