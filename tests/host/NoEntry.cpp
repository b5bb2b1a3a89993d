// A library that is no plug-in.

extern "C" int GetNothing();
extern "C" int GetNothing() {
    return 0;
}
