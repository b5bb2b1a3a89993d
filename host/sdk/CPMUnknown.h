#pragma once

#include "IPMPersist.h"
#include "IPMUnknown.h"
#include "InterfacePtr.h"
#include "PlugIn.h"

/** Base of an implementation of IFace: forwards the three operations of IPMUnknown to the boss
 *  object that owns the implementation. The boss outlives it. */
template <class IFace>
class CPMUnknown : public IFace {
  public:
    explicit CPMUnknown(IPMUnknown* boss) : fBoss(boss) {}
    CPMUnknown(const CPMUnknown&) = delete;
    CPMUnknown& operator=(const CPMUnknown&) = delete;

    IPMUnknown* QueryInterface(PMIID interfaceID) const override {
        return fBoss->QueryInterface(interfaceID);
    }
    void AddRef() const override { fBoss->AddRef(); }
    void Release() const override { fBoss->Release(); }
    virtual ~CPMUnknown() = default;

  protected:
    /** Announces a change of a persistent object; nothing when the boss lives in no database. */
    void PreDirty() const {
        InterfacePtr<IPMPersist> persist(fBoss, UseDefaultIID());
        if (persist) persist->PreDirty();
    }

  private:
    IPMUnknown* fBoss;
};

// NOLINTBEGIN(bugprone-macro-parentheses): a class name cannot stand in parentheses.

/** Registers CLASS under an implementation id when the plug-in's file is loaded, behind those
 *  registered before. CLASS has a constructor from the owning boss. */
#define CREATE_PMINTERFACE(CLASS, IMPLEMENTATION_ID)                     \
    static ImplementationRecord gRegister##CLASS(                        \
        IMPLEMENTATION_ID, #CLASS,                                       \
        [](IPMUnknown* boss) -> IPMUnknown* { return new CLASS(boss); }, \
        [](IPMUnknown* object) { delete static_cast<CLASS*>(object); }, nullptr)

/** The same for a class whose ReadWrite(IPMStream*, ImplementationID) keeps it in a database. */
#define CREATE_PERSIST_PMINTERFACE(CLASS, IMPLEMENTATION_ID)                         \
    static ImplementationRecord gRegister##CLASS(                                    \
        IMPLEMENTATION_ID, #CLASS,                                                   \
        [](IPMUnknown* boss) -> IPMUnknown* { return new CLASS(boss); },             \
        [](IPMUnknown* object) { delete static_cast<CLASS*>(object); },              \
        [](IPMUnknown* object, IPMStream* stream, ImplementationID implementation) { \
            static_cast<CLASS*>(object)->ReadWrite(stream, implementation);          \
        })

// NOLINTEND(bugprone-macro-parentheses)
