#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace linewright {

// What the systems do differently.

/** The command line in UTF-8, without the program's name. */
std::vector<std::string> CommandLineArguments(int count, char** values);
/** The folder that the running program lies in; empty when the system does not say. */
std::filesystem::path ProgramFolder();
/** Makes the standard streams carry bytes as they are, in UTF-8 on a terminal. */
void PrepareStandardStreams();
bool IsStandardErrorTerminal();

}  // namespace linewright
