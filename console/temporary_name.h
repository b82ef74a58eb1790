// A file under a random name that is not left behind when the program ends.
//
// Every signal that can be caught and would end the program removes the file first and then does what it would have
// done; signals that are ignored stay so. SIGKILL and a power cut leave the file, and so does any signal where eight
// others are there already or its path is longer than 4095 bytes. When the last such file is gone, signals do again
// what they did when the first one came: nobody may change that meanwhile. Names are made and given up by one thread
// at a time.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigset_t is not in <csignal>

namespace console {

/// Holds signals back from this thread for as long as it lives.
class SignalsHeld {
 public:
  SignalsHeld();
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;
  ~SignalsHeld();

 private:
  sigset_t before_{};
};

class TemporaryName {
 public:
  /// Calls `make` with names in `folder` until it makes a file of one, which is when it returns true; false with the
  /// system's error number EEXIST asks for another name. FileFailure with any other number.
  TemporaryName(const std::filesystem::path& folder, const std::function<bool(const char* name)>& make);
  TemporaryName(const TemporaryName&) = delete;
  TemporaryName& operator=(const TemporaryName&) = delete;

  /// Removes the file, unless it has got another name since.
  ~TemporaryName();

  [[nodiscard]] const char* c_str() const { return name_.c_str(); }

 private:
  std::string name_;
  std::size_t slot_ = 0;
};

}  // namespace console
