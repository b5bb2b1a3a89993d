#include "cli/Command.h"

#include <fmt/format.h>

#include <exception>
#include <new>
#include <stdexcept>

#include "cli/Arguments.h"
#include "cli/DialogCommand.h"
#include "cli/DrawingAdvice.h"
#include "cli/DrawingModule.h"
#include "cli/FontsCommand.h"
#include "cli/Installation.h"
#include "cli/PrefsCommand.h"
#include "cli/TypesCommand.h"
#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "stream/AnswerLines.h"
#include "text/Readable.h"

namespace linewright {

namespace {

ExitStatus RunOne(Service& service, DialogUser& user, const Arguments& arguments,
                  Console& console) {
    switch (arguments.command) {
        case Arguments::Command::kTypes: return RunTypes(service, arguments.isTypesJson, console);
        case Arguments::Command::kEncode: return RunEncode(service, arguments.encode, console);
        case Arguments::Command::kStream:
            return AnswerLines(service, console.in, console.out, console.language) ? kDone
                                                                                   : kTrouble;
        case Arguments::Command::kBatch:
            return RunBatch(service, arguments.batchFiles, arguments.batch, console);
        case Arguments::Command::kPrefs: return RunPrefs(console);
        case Arguments::Command::kPrefsSet: return RunPrefsSet(arguments.assignments, console);
        case Arguments::Command::kDraw:
            return OpenDrawingModule().draw(service, arguments.draw, console);
        case Arguments::Command::kVerify:
            return OpenDrawingModule().verify(service, arguments.draw, console);
        case Arguments::Command::kProof:
            return OpenDrawingModule().proof(service, arguments.batchFiles, arguments.batch.rows,
                                             arguments.draw, console);
        case Arguments::Command::kFontsList:
            return arguments.isFontsJson
                       ? RunFontsListJson(arguments.draw.drawing.xDimension, console)
                       : RunFontsList(arguments.fonts, console);
        case Arguments::Command::kFontsInstall: return RunFontsInstall(arguments.fonts, console);
        case Arguments::Command::kDialog: return RunDialog(user, arguments.dialog, console);
    }
    return kTrouble;
}

void ReportLeaks(const host::Leaks& leaks, std::ostream& err) {
    if (leaks.blocks == 0 && leaks.references == 0) return;
    err << fmt::format("linewright: still alive at the end: {} blocks, {} references\n",
                       leaks.blocks, leaks.references);
}

ExitStatus SayTrouble(std::string_view sentence, Console& console) {
    console.out.flush();
    console.err << "linewright: " << Readable(sentence) << '\n';
    return kTrouble;
}

ExitStatus Run(const std::vector<std::string>& words, Console& console) {
    std::optional<Arguments> arguments = ParseArguments(words, console);
    if (!arguments) return kDone;
    console.language = LanguageOf(arguments->host.locale);
    if (arguments->host.plugin.empty()) arguments->host.plugin = host::Utf8FromPath(PlugInFile());
    if (arguments->fonts.empty()) arguments->fonts = host::Utf8FromPath(FontFolder());
    arguments->draw.fonts = arguments->fonts;
    arguments->batch.fonts = arguments->fonts;
    DialogUser user;
    if (arguments->command == Arguments::Command::kDialog) arguments->host.frontEnd = &user;
    Service service(arguments->host);
    if (arguments->batch.isResumed) arguments->batch.circumstances += PreferencesText();
    const ExitStatus exitStatus = RunOne(service, user, *arguments, console);
    ReportLeaks(service.Stop(), console.err);
    return exitStatus;
}

}  // namespace

int RunCommand(const std::vector<std::string>& arguments, Console& console) noexcept {
    try {
        const ExitStatus exitStatus = Run(arguments, console);
        if (console.out.flush()) return exitStatus;
        return SayTrouble("standard output could not be written to its end", console);
    } catch (const RequestFailure& failure) {
        return SayTrouble(Sentence(failure, console.language), console);
    } catch (const DrawingFailure& failure) {
        return SayTrouble(AdvisedSentence(failure, console.language), console);
    } catch (const std::bad_alloc&) {
        return SayTrouble("there is not enough memory", console);
    } catch (const std::length_error&) {
        return SayTrouble("there is not enough memory", console);
    } catch (const std::exception& failure) {
        return SayTrouble(failure.what(), console);
    }
}

}  // namespace linewright
