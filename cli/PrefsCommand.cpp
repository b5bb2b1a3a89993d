#include "cli/PrefsCommand.h"

#include <fmt/format.h>

#include "cli/PreferenceFields.h"
#include "host/runtime/Host.h"
#include "host/runtime/HostText.h"
#include "merge/Failure.h"
#include "plugin/PreferencesFile.h"
#include "text/Readable.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

/** Reads this program's own copy of the record from the file that the plug-in reads. */
void ReadPreferences() {
    ClearLocalConfig();
    DetectLocalConfig();
    LoadPreferences();
}

std::string FileName() {
    IDFile file;
    if (!LocatePreferencesFile(file)) throw Failure("the host knows no folder for preferences");
    return host::ToUtf8(file.GetString());
}

void Print(std::ostream& out, std::string_view name, std::string_view text,
           std::string_view choice) {
    out << fmt::format("{:18}{}{}\n", name, text,
                       choice.empty() ? "" : fmt::format("  ({})", choice));
}

}  // namespace

std::string PreferencesText() {
    ReadPreferences();
    std::string text;
    for (const PreferenceField& field : PreferenceFields()) {
        text += fmt::format("{}={}\n", field.name, field.Text(preferences));
    }
    return text;
}

ExitStatus RunPrefs(Console& console) {
    ReadPreferences();
    console.out << FileName() << "\n\n";
    Print(console.out, "version", std::to_string(preferences.version), "");
    Print(console.out, "lastData",
          fmt::format("\"{}\"", Readable(Utf8FromLatin1(preferences.lastData.View()))), "");
    for (const PreferenceField& field : PreferenceFields()) {
        Print(console.out, field.name, fmt::format("{:5}", field.Text(preferences)),
              field.Choice());
    }
    return kDone;
}

ExitStatus RunPrefsSet(const std::vector<std::string>& assignments, Console& console) {
    const host::SettingsLock lock;
    ReadPreferences();
    SetPreferences(preferences, assignments);
    if (!SavePreferences()) throw Failure(FileName() + " cannot be written");
    return RunPrefs(console);
}

}  // namespace linewright
