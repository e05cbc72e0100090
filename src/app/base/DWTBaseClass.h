#pragma once

#include <QObject>
#include <memory>

// The common base object, made in two steps: the constructor, then init(), which runs the set-up
// step of every class, base first. Tear-down steps run derived first.
class DWTBaseClass : public QObject {
  public:
    DWTBaseClass() = default;
    ~DWTBaseClass() override;

    // Runs the set-up steps; false makes the object unusable. Call it once, through make<T>().
    virtual bool init();

    // A new base object for classes that do not derive from it and need nsObjectRelease().
    static std::shared_ptr<DWTBaseClass> BaseClass();

    // Drops the object held in `field`, if any: the one way to give it up.
    template <typename T>
    void nsObjectRelease(std::shared_ptr<T> &field) {
        field.reset();
    }

    // Whether the program was started with "-Installer", in any case.
    bool checkLunchedMode() const;

  private:
    bool TBC_Init();
    void TBC_Dealloc();
};

// Declares the private set-up step INIT and tear-down step DEALLOC of a class on `Base`.
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
