#pragma once

#include <string>

// The argument vector that the application object was made with.
extern char **programArguments;

// Lets the program have been started as `argument` while it lives.
class ArgumentOverride {
  public:
    explicit ArgumentOverride(std::string argument)
        : m_argument(std::move(argument)), m_original(programArguments[0]) {
        programArguments[0] = m_argument.data();
    }
    ~ArgumentOverride() { programArguments[0] = m_original; }

  private:
    std::string m_argument;
    char *const m_original;
};
