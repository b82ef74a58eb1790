// What the module's operations work with: the host of the run, and what loading has bound once and for all.
//
// Operations have fixed names and arguments, so what they work with is not among these: whoever calls one enters the
// module before, on the thread of the call. Entries nest, for a host's callback may call any operation again, and each
// thread has its own.
#pragma once

#include <functional>
#include <memory>

#include "vexo_xyz_impl/host/host.h"

namespace vexo_xyz_impl {

/// What loading has bound: the texts `T`, the styling of labels, the tables of the market.
struct Loaded {
  std::shared_ptr<const host::Texts> texts;
  std::shared_ptr<host::Styling> style;
  std::shared_ptr<const host::MarketTables> market;
};

struct Bindings {
  host::Host host;
  Loaded loaded;
};

/// While it lives, operations called on this thread work with `bindings`; then with what they worked with before.
/// Entries of one thread end in the reverse order of their beginnings.
class Entered {
 public:
  explicit Entered(Bindings bindings);
  Entered(const Entered&) = delete;
  Entered& operator=(const Entered&) = delete;
  ~Entered();

 private:
  Bindings bindings_;
  const Bindings* outer_;
};

/// What was entered last on this thread. Fails with ImportError outside of any entry.
[[nodiscard]] const Bindings& bound();

/// The entered host's command line, for short.
[[nodiscard]] inline host::CommandLine& command_line() { return bound().host.command_line; }

/// Does `work` while the host's lock, if it has one, is let go of; or while it is held (see `host::HostLock`).
void without_lock(const std::function<void()>& work);
void with_lock(const std::function<void()>& work);

/// The entered market's tables: `_D->KOLEJNOSC()`, `_D->KRAJ_LAT()` and so on.
struct BoundMarket {
  const host::MarketTables* operator->() const { return bound().loaded.market.get(); }
};
inline constexpr BoundMarket _D{};

}  // namespace vexo_xyz_impl
