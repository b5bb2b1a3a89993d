#pragma once

#include "host/runtime/BossClass.h"

namespace host {

/** The host's own classes. Their objects answer as long as the host runs. */
extern const BossClass kSessionClass;
extern const BossClass kApplicationClass;

}  // namespace host
