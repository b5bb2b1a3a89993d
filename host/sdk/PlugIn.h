#pragma once

#include "IPMUnknown.h"

class IPMStream;

/** One implementation class of a plug-in: its id and how its objects are made, destroyed and kept
 *  in a database. Records are static objects that join the plug-in's list as they are built. */
struct ImplementationRecord {
    using CreateProc = IPMUnknown* (*)(IPMUnknown* boss);
    using DestroyProc = void (*)(IPMUnknown* object);
    using ReadWriteProc = void (*)(IPMUnknown* object, IPMStream* stream, ImplementationID id);

    inline ImplementationRecord(ImplementationID recordID, const char* name, CreateProc createProc,
                                DestroyProc destroyProc, ReadWriteProc readWriteProc);

    ImplementationID id;
    const char* className;
    CreateProc create;
    DestroyProc destroy;
    ReadWriteProc readWrite;  // nullptr: not persistent
    ImplementationRecord* next = nullptr;
};

/** The one object by which the host meets a plug-in. */
class PlugIn {
  public:
    /** The first registered implementation; the others follow by `next`, in order. */
    virtual const ImplementationRecord* GetImplementations() const { return fFirst; }

    void Register(ImplementationRecord* record) {
        *fEnd = record;
        fEnd = &record->next;
    }

  private:
    ImplementationRecord* fFirst = nullptr;
    ImplementationRecord** fEnd = &fFirst;
};

/** The exported entry of every plug-in. The object lives as long as the plug-in is loaded. */
extern "C" PlugIn* GetPlugIn();

ImplementationRecord::ImplementationRecord(ImplementationID recordID, const char* name,
                                           CreateProc createProc, DestroyProc destroyProc,
                                           ReadWriteProc readWriteProc)
    : id(recordID),
      className(name),
      create(createProc),
      destroy(destroyProc),
      readWrite(readWriteProc) {
    GetPlugIn()->Register(this);
}
