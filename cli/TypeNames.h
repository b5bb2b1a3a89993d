#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linewright {

/** A type of the plug-in and the short name that people type for it. */
struct TypeName {
    std::string_view shortName;
    std::string_view typeName;
};

/** The type name for what a user wrote: a short name's, else the text as it stands, for the
 *  plug-in to judge. */
std::string_view TypeNameOf(std::string_view written);

/** The short name of a type name; "" for one that has none. */
std::string_view ShortNameOf(std::string_view typeName);

/** The names that need the fewest changes to become what a user wrote, the nearest first: short
 *  names, or type names where the text looks like one. */
std::vector<std::string_view> NearestNames(std::string_view written);

}  // namespace linewright
