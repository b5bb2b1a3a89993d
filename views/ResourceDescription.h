#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace linewright {

/** All that a host's resource files need of a plug-in, as JSON: its implementations as its library
 *  registers them; and from the resources beside that library the classes, actions, menus, dialogs
 *  with the places of their widgets in each locale, and string tables. Ids that each host has
 *  numbers of its own for are null, or the name of its constant. Throws std::runtime_error. */
std::string DescribeResources(const std::filesystem::path& plugIn, std::string_view version);

}  // namespace linewright
