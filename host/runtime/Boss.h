#pragma once

#include <optional>

#include "IPMPersist.h"
#include "host/runtime/BossClass.h"
#include "host/runtime/Counted.h"

namespace host {

class DataBase;

/** An object of a class: makes the implementation of an interface when it is first asked for, and
 *  owns it. Class and database outlive it. */
class Boss final : public IPMUnknown, public Counted {
  public:
    /** Without a database the object is not persistent. */
    explicit Boss(const BossClass& bossClass, DataBase* dataBase = nullptr);

    IPMUnknown* QueryInterface(PMIID interfaceID) const noexcept override;
    void AddRef() const noexcept override { CountUp(); }
    void Release() const noexcept override { CountDown(); }

    ClassID GetClass() const { return fClass.id; }
    /** Writes what the object's implementations keep into its database. */
    void Store();

  private:
    /** What makes the object persistent. */
    class Persist final : public IPMPersist {
      public:
        Persist(Boss& boss, DataBase& dataBase) : fBoss(boss), fDataBase(dataBase) {}
        IPMUnknown* QueryInterface(PMIID interfaceID) const noexcept override {
            return fBoss.QueryInterface(interfaceID);
        }
        void AddRef() const noexcept override { fBoss.AddRef(); }
        void Release() const noexcept override { fBoss.Release(); }
        void PreDirty() noexcept override;
        IDataBase* GetDataBase() const noexcept override;

      private:
        Boss& fBoss;
        DataBase& fDataBase;
    };
    struct Implementation {
        const Binding* binding;
        IPMUnknown* object;
    };

    ~Boss() override;
    IPMUnknown* Find(PMIID interfaceID);
    IPMUnknown* Create(const Binding& binding);
    void Load(const Implementation& implementation);

    const BossClass& fClass;
    DataBase* fDataBase;
    std::optional<Persist> fPersist;
    std::vector<Implementation> fImplementations;  // in the order of their making
};

}  // namespace host
