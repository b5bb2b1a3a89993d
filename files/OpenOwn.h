#pragma once

#include <string>
#include <string_view>

#include "files/Descriptor.h"

namespace files {

/** Opens or makes a file as OwnFile has them; one without a file says in `error` why. */
Descriptor OpenOwn(int folder, const std::string& name, std::string& error);

/** Writes all bytes; false where the system does not, which errno tells. */
bool WriteAll(int file, std::string_view bytes);

}  // namespace files
