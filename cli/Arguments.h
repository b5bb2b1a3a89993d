#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/BatchCommand.h"
#include "cli/Console.h"
#include "cli/DialogCommand.h"
#include "cli/DrawCommand.h"
#include "cli/EncodeCommand.h"
#include "requests/Service.h"

namespace linewright {

/** What the command line asks for. */
struct Arguments {
    enum class Command {
        kTypes,
        kEncode,
        kStream,
        kBatch,
        kPrefs,
        kPrefsSet,
        kDialog,
        kDraw,
        kVerify,
        kProof,
        kFontsList,
        kFontsInstall,
    };

    Command command = Command::kTypes;
    HostOptions host;
    bool isTypesJson = false;
    bool isFontsJson = false;
    EncodeOptions encode;
    MergeFiles batchFiles;
    MergeOptions batch;
    std::vector<std::string> assignments;
    DialogOptions dialog;
    DrawOptions draw;
    /** The folder of the fonts' files; where it is not stated it is found from the program. */
    std::string fonts;
};

/** Reads a command line (UTF-8, without the program's name). Answers --help and --version itself:
 *  then there are no arguments. Throws Failure for a mistake. */
std::optional<Arguments> ParseArguments(std::vector<std::string> arguments, Console& console);

}  // namespace linewright
