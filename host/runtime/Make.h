#pragma once

namespace host {

/** Makes an object. Without memory the process ends here: nothing may be thrown to a plug-in. */
template <class Object>
Object* Make() noexcept {
    return new Object;  // NOLINT(bugprone-unhandled-exception-at-new)
}

}  // namespace host
