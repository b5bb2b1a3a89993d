#pragma once

/** What Cairo draws on, for headers that only hand it on. */
using cairo_t = struct _cairo;
