#pragma once

namespace linewright {

/** Sounds the system's default beep. */
void Beep();

}  // namespace linewright
