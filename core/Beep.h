#pragma once

namespace linewright {

/** Sounds the system's default beep. Service: no caller of our own. */
void Beep();

}  // namespace linewright
