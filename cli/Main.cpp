#include <iostream>

#include "cli/Command.h"
#include "cli/Platform.h"
#include "host/runtime/Host.h"

int main(int count, char** values) {
    host::EndWithoutMemory("linewright");
    linewright::PrepareStandardStreams();
    linewright::Console console{
        .in = std::cin,
        .out = std::cout,
        .err = std::cerr,
        .isErrTerminal = linewright::IsStandardErrorTerminal(),
    };
    return linewright::RunCommand(linewright::CommandLineArguments(count, values), console);
}
