#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "include/linewright.h"
#include "requests/Service.h"
#include "words/Words.h"

namespace linewright {

/** What ends a call with a status of its own. The sentence is UTF-8. */
struct CallFailure {
    linewright_status status;
    std::string sentence;
};

/** The host of this process while it is open. */
class Opened {
  public:
    /** Starts host and plug-in. Throws RequestFailure. */
    explicit Opened(const linewright_places& places);

    /** Whether all places that are stated are those of this host. */
    bool IsAt(const linewright_places& places) const;

    Service& Requests() { return service; }
    Language Words() const { return language; }
    /** The folder of the fonts. */
    const std::string& FontFolder() const { return fonts; }
    const std::vector<linewright_type>& Types() const { return types; }

    int uses = 1;

  private:
    HostOptions host;
    std::string fonts;
    Language language;
    Service service;
    std::vector<TypeDescription> descriptions;
    std::vector<linewright_type> types;
};

/** The one host, which nobody destroys when the process ends; nullptr while it is closed. Only
 * under the lock. */
std::unique_ptr<Opened>& TheHost();

/** Does what a function of the interface is for, under the lock: whatever is thrown becomes a
 * status and this thread's sentence. */
linewright_status Guarded(const std::function<linewright_status()>& call) noexcept;
/** The same with the open host, which runs on this thread meanwhile. */
linewright_status WithHost(const std::function<linewright_status(Opened&)>& call) noexcept;

/** The sentence of this thread's last call. */
const char* LastSentence() noexcept;

inline std::string_view ViewOf(linewright_text text) {
    return text.size == 0 ? std::string_view() : std::string_view(text.data, text.size);
}
inline std::string StringOf(linewright_text text) {
    return std::string(ViewOf(text));
}
inline linewright_text TextOf(std::string_view text) {
    return {text.data(), text.size()};
}

}  // namespace linewright
