#include "library/Opened.h"

#include <algorithm>
#include <new>
#include <stdexcept>

#include "host/runtime/FrontEnd.h"
#include "library/Place.h"
#include "merge/Failure.h"
#include "text/Readable.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

/** A library shows nothing. */
class SilentFrontEnd final : public host::FrontEnd {
  public:
    void ShowAlert(host::AlertKind /*kind*/, const char* /*text*/) override {}
    void Beep() override {}
};

SilentFrontEnd silent;
std::mutex lock;
thread_local std::string sentence;

std::string StatedOr(linewright_text text, const std::string& usual) {
    return text.size == 0 ? usual : StringOf(text);
}

HostOptions OptionsOf(const linewright_places& places) {
    return {.plugin = StatedOr(places.plugin, UsualPlugIn()),
            .roamingFolder = StringOf(places.config_folder),
            .appFolder = StringOf(places.app_folder),
            .locale = StringOf(places.locale),
            .frontEnd = &silent};
}

linewright_type ForeignType(const TypeDescription& description) {
    const BarcodeType& type = *FindTypeByPrefix(description.typeName);
    linewright_type foreign{.name = TextOf(description.typeName),
                            .short_name = TextOf(type.shortName),
                            .display_text = TextOf(description.displayText),
                            .font = {nullptr, 0},
                            .font_size = 0};
    if (type.face == nullptr) return foreign;
    foreign.font = TextOf(type.face->family);
    foreign.font_size = type.Module() * type.face->modulesPerEm;
    return foreign;
}

linewright_status StatusOf(const RequestFailure& failure) {
    return failure.reason == FailureReason::kNoMemory ? LINEWRIGHT_NO_MEMORY : LINEWRIGHT_FAILED;
}

Language LanguageNow() {
    return TheHost() ? TheHost()->Words() : Language::kEnglish;
}

/** What is being thrown, as a status and this thread's sentence. */
linewright_status Caught() {
    constexpr const char* kNoMemory = "there is not enough memory";
    try {
        throw;
    } catch (const CallFailure& failure) {
        sentence = Readable(failure.sentence);
        return failure.status;
    } catch (const RequestFailure& failure) {
        sentence = Readable(Sentence(failure, LanguageNow()));
        return StatusOf(failure);
    } catch (const std::bad_alloc&) {
        sentence = kNoMemory;
        return LINEWRIGHT_NO_MEMORY;
    } catch (const std::length_error&) {
        sentence = kNoMemory;
        return LINEWRIGHT_NO_MEMORY;
    } catch (const std::exception& failure) {
        sentence = Readable(failure.what());
        return LINEWRIGHT_FAILED;
    }
}

}  // namespace

Opened::Opened(const linewright_places& places)
    : host(OptionsOf(places)),
      fonts(StatedOr(places.fonts, UsualFonts())),
      language(LanguageOf(host.locale)),
      service(host),
      descriptions(service.Types()) {
    types.reserve(descriptions.size());
    for (const TypeDescription& row : descriptions) types.push_back(ForeignType(row));
}

bool Opened::IsAt(const linewright_places& places) const {
    const auto isHere = [](linewright_text stated, const std::string& here) {
        return stated.size == 0 || ViewOf(stated) == here;
    };
    return isHere(places.plugin, host.plugin) && isHere(places.fonts, fonts) &&
           isHere(places.config_folder, host.roamingFolder) &&
           isHere(places.app_folder, host.appFolder) && isHere(places.locale, host.locale);
}

std::unique_ptr<Opened>& TheHost() {
    static auto* const host = new std::unique_ptr<Opened>;
    return *host;
}

linewright_status Guarded(const std::function<linewright_status()>& call) noexcept {
    const std::lock_guard locked(lock);
    sentence.clear();
    try {
        return call();
    } catch (...) {
        try {
            return Caught();
        } catch (...) {
            return LINEWRIGHT_NO_MEMORY;  // not even for the sentence
        }
    }
}

linewright_status WithHost(const std::function<linewright_status(Opened&)>& call) noexcept {
    return Guarded([&call] {
        if (!TheHost()) throw CallFailure{LINEWRIGHT_NOT_OPEN, "linewright_open comes first"};
        host::UseThisThread();
        return call(*TheHost());
    });
}

const char* LastSentence() noexcept {
    return sentence.c_str();
}

}  // namespace linewright
