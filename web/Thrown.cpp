#include <cstddef>
#include <cstdlib>
#include <string>
#include <typeinfo>

#include "render/DrawingFailure.h"
#include "requests/RequestFailure.h"
#include "web/Answer.h"
#include "words/Words.h"

// There are no exceptions here. What is thrown leaves its sentence as the answer and ends the
// instance; whoever called makes a new one. Both functions are the C++ library's interface.

extern "C" void* __cxa_allocate_exception(std::size_t size) noexcept {
    return std::malloc(size);
}

extern "C" [[noreturn]] void __cxa_throw(void* thrown, std::type_info* type,
                                         void (* /*destroy*/)(void*)) {
    using namespace linewright;
    web::Answer().clear();
    if (*type == typeid(DrawingFailure)) {
        web::Answer() = Sentence(*static_cast<DrawingFailure*>(thrown), web::CurrentLanguage());
    } else if (*type == typeid(RequestFailure)) {
        web::Answer() = Sentence(*static_cast<RequestFailure*>(thrown), web::CurrentLanguage());
    }
    __builtin_trap();
}
