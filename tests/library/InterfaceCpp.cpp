#include "Interface.c"
