#pragma once

// Exported from the plug-in as `strrev` and `strupr`; the names here are ours because C runtimes
// declare functions of those names themselves. Service: no caller of our own.

extern "C" {

/** Reverses a text of three characters or more in place; shorter ones stay as they are. */
char* LinewrightStrrev(char* text);
/** Turns a to z into A to Z in place. Borrows a scratch string for each character. */
char* LinewrightStrupr(char* text);
}
