#pragma once

#include "IPMUnknown.h"

enum UseDefaultIIDType { UseDefaultIID_ };
inline UseDefaultIIDType UseDefaultIID() {
    return UseDefaultIID_;
}

/** Owns one interface reference and releases it. Built from a pointer it takes the caller's
 *  reference over; built from another interface it queries for its own. May hold none. */
template <class IFace>
class InterfacePtr {
  public:
    InterfacePtr() = default;
    explicit InterfacePtr(IFace* owned) : fInterface(owned) {}
    InterfacePtr(const IPMUnknown* other, PMIID interfaceID)
        : fInterface(other ? static_cast<IFace*>(other->QueryInterface(interfaceID)) : nullptr) {}
    InterfacePtr(const IPMUnknown* other, UseDefaultIIDType)
        : InterfacePtr(other, static_cast<PMIID>(IFace::kDefaultIID)) {}
    InterfacePtr(const InterfacePtr&) = delete;
    InterfacePtr& operator=(const InterfacePtr&) = delete;
    ~InterfacePtr() {
        if (fInterface) fInterface->Release();
    }

    IFace* get() const { return fInterface; }
    IFace* operator->() const { return fInterface; }
    operator IFace*() const { return fInterface; }

  private:
    IFace* fInterface = nullptr;
};
