// The host's command line: prompts, printing, system variables, command registration.
//
// Every operation may also fail with an exception of the host's; the command reports such a failure and ends.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/host/values.h"

namespace vexo_xyz_impl::host {

class CommandLine {
 public:
  virtual ~CommandLine() = default;

  /// File dialog. `filter` lists extensions separated by semicolons. RTNORM: `chosen.resval.rstring` holds the
  /// path, or nothing when the path is to be typed instead; RTCAN: cancelled.
  virtual PromptStatus gcedGetFileD(std::string_view title, std::string_view default_name, std::string_view filter,
                                    int flags, resbuf& chosen) = 0;

  /// A typed text; `spaces_allowed` 1 lets blanks into it. The text is empty unless RTNORM.
  virtual std::pair<PromptStatus, std::string> gcedGetString(int spaces_allowed, std::string_view prompt) = 0;

  /// Sets the keywords of the next `gcedGetKword`, separated by single blanks.
  virtual PromptStatus gcedInitGet(int flags, std::string_view keywords) = 0;

  /// A keyword: RTNORM with one of the words exactly as listed, RTNONE for Enter, else cancel or error.
  virtual std::pair<PromptStatus, std::string> gcedGetKword(std::string_view prompt) = 0;

  /// Prints a finished text as it stands; a per-cent sign in it is just a character.
  virtual void gcutPrintf(std::string_view text) = 0;

  /// Sets a system variable of the drawing.
  virtual PromptStatus gcedSetVar(std::string_view name, const resbuf& value) = 0;
};

/// How a run of a command ended; for hosts that can use it, as a program can for its exit code.
enum class CommandOutcome { done, nothing_done, failed };

/// A command's operation; whoever calls it enters the module before (bindings.h).
using CommandFunction = std::function<CommandOutcome()>;

/// The lock that guards a host's interpreter. A host without one leaves this role out.
class HostLock {
 public:
  virtual ~HostLock() = default;

  /// Does work that does not concern the host, the lock let go of meanwhile. What the work does call of the host after
  /// all (texts, siblings) takes the lock itself.
  virtual void let_go(const std::function<void()>& work) = 0;

  /// Does work that calls the host many times with the lock taken once, wherever it is called from.
  virtual void hold(const std::function<void()>& work) = 0;
};

/// Which of a file's two coordinates stands first.
enum class AxisOrder { east_first, north_first };

/// What is known of the file besides its numbers, and wanted of the drawing. A host that knows nothing leaves this role
/// out.
class Foreknowledge {
 public:
  virtual ~Foreknowledge() = default;

  /// The order of the axes as the user said it before the command began; it counts for more than what the numbers look
  /// like. Empty: not told.
  virtual std::optional<AxisOrder> axis_order() = 0;

  /// What speaks for a reading with that order of the axes or against it, finished lines to print under it: the
  /// `share`, up to 1, of the points that it fits, names of columns and the like. Empty: nothing.
  virtual std::string beside_reading(AxisOrder order, double share) = 0;

  /// The height that labels are to have, metres. Empty: what suits the points.
  virtual std::optional<double> label_height() = 0;
};

class CommandTable {
 public:
  virtual ~CommandTable() = default;

  /// Makes `function` reachable under its local and its global name, in a group of commands.
  virtual void command(std::string_view local_name, std::string_view global_name, std::string_view group_name,
                       CommandFunction function) = 0;
};

}  // namespace vexo_xyz_impl::host
