#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace linewright {

/** How many bytes are looked at together; so many can be read behind what is looked at. */
inline constexpr std::size_t kSixteen = 16;

/** Which of sixteen bytes are what, a bit for each, the first one's lowest. */
struct ByteMasks {
    /** One of the four that are looked for. */
    std::uint32_t found = 0;
    std::uint32_t aboveAscii = 0;
};

/** Four bytes that are looked for; the same one may stand among them several times. */
class FourBytes {
  public:
    explicit FourBytes(std::array<char, 4> wanted) : bytes(wanted) {
        for (std::size_t i = 0; i < wanted.size(); ++i) sixteenTimes[i].fill(wanted[i]);
    }

    /** Byte by byte. */
    ByteMasks PlainlyLookAt(const char* sixteen) const {
        ByteMasks masks;
        for (std::size_t place = 0; place < kSixteen; ++place) {
            bool isFound = false;
            for (const char byte : bytes) isFound = isFound || sixteen[place] == byte;
            const std::uint32_t bit = std::uint32_t{1} << place;
            if (isFound) masks.found |= bit;
            if (static_cast<unsigned char>(sixteen[place]) > 127) masks.aboveAscii |= bit;
        }
        return masks;
    }

#ifdef __SSE2__
    /** The same at once. */
    ByteMasks LookAt(const char* sixteen) const {
        const __m128i loaded = _mm_loadu_si128(reinterpret_cast<const __m128i*>(sixteen));
        const auto equals = [&](std::size_t which) {
            const char* const times = sixteenTimes[which].data();
            return _mm_cmpeq_epi8(loaded, _mm_load_si128(reinterpret_cast<const __m128i*>(times)));
        };
        const __m128i found =
            _mm_or_si128(_mm_or_si128(equals(0), equals(1)), _mm_or_si128(equals(2), equals(3)));
        return {static_cast<std::uint32_t>(_mm_movemask_epi8(found)),
                static_cast<std::uint32_t>(_mm_movemask_epi8(loaded))};
    }
#else
    ByteMasks LookAt(const char* sixteen) const {
        return PlainlyLookAt(sixteen);
    }
#endif

  private:
    std::array<char, 4> bytes;
    alignas(kSixteen) std::array<std::array<char, kSixteen>, 4> sixteenTimes;
};

}  // namespace linewright
