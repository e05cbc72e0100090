#pragma once

#include <QObject>
#include <memory>

// The common base object. Objects are made in two steps: the constructor only makes the fields,
// init() runs the private set-up step of every class of the chain, base first. Tear-down steps run
// derived first, from the destructors.
class DWTBaseClass : public QObject {
  public:
    DWTBaseClass() = default;
    ~DWTBaseClass() override;

    // Runs the base's init() and then this class's own private set-up step. False when a step says
    // no; the object must then not be used. Call it once, through make<T>().
    virtual bool init();

    // A new base object for classes that do not derive from it and need nsObjectRelease().
    static std::shared_ptr<DWTBaseClass> BaseClass();

    // Drops the object held in `field`, if any, and leaves the field empty: the one way in which a
    // held object is given up.
    template <typename T>
    void nsObjectRelease(std::shared_ptr<T> &field) {
        field.reset();
    }

    // True when one of the program's arguments, in any position, is "-Installer" as a whole,
    // compared ignoring letter case.
    bool checkLunchedMode() const;

  private:
    bool TBC_Init();
    void TBC_Dealloc();
};

// Declares, at the head of a class on `Base`, its private set-up step INIT and tear-down step
// DEALLOC, and where they run.
#define DWT_SETUP(Class, Base, INIT, DEALLOC) \
  public:                                     \
    ~Class() override {                       \
        DEALLOC();                            \
    }                                         \
    bool init() override {                    \
        return Base::init() && INIT();        \
    }                                         \
                                              \
  private:                                    \
    bool INIT();                              \
    void DEALLOC();

// Makes a T and sets it up; a null pointer when a set-up step says no.
template <typename T>
std::shared_ptr<T> make() {
    auto object = std::make_shared<T>();
    return object->init() ? object : nullptr;
}
