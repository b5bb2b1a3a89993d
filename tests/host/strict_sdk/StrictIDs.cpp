#include <type_traits>

#include "PMTypes.h"

// That the plug-in compiles with these headers says something only as long as they are strict.

namespace {

template <class ID, class... Others>
constexpr bool kIsStrict =
    std::is_constructible_v<ID, uint32> && !std::is_convertible_v<uint32, ID> &&
    !std::is_convertible_v<ID, uint32> && !std::is_constructible_v<uint32, ID> &&
    !std::is_default_constructible_v<ID> && (!std::is_constructible_v<ID, Others> && ...);

static_assert(kIsStrict<ClassID, PMIID, ImplementationID, PluginID, ActionID, WidgetID>);
static_assert(kIsStrict<PMIID, ImplementationID, PluginID, ActionID, WidgetID, ClassID>);
static_assert(kIsStrict<ImplementationID, PluginID, ActionID, WidgetID, ClassID, PMIID>);
static_assert(kIsStrict<PluginID, ActionID, WidgetID, ClassID, PMIID, ImplementationID>);
static_assert(kIsStrict<ActionID, WidgetID, ClassID, PMIID, ImplementationID, PluginID>);
static_assert(kIsStrict<WidgetID, ClassID, PMIID, ImplementationID, PluginID, ActionID>);

}  // namespace
