// Every call of one import made to fail in turn, by status and by exception: nothing may stay open, nothing may be
// closed twice, and the outcome must be the one that the failure rules give.
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/console_host.h"

namespace vexo_xyz_impl::host {
namespace {

using testing_support::ConsoleHost;
using testing_support::TemporaryFile;

enum class Way { status, exception };

struct InjectedFailure : std::runtime_error {
  InjectedFailure() : std::runtime_error("injected") {}
};

// Counts the calls that can fail in the way that is tried, and makes the one at `fatal` fail.
class Faults {
 public:
  Faults(Way way, std::size_t fatal) : way_(way), fatal_(fatal) {}

  // A call that can fail by status: whether it is to answer with a failing one.
  bool status_of(const char* call) {
    if (!is_fatal(call)) return false;
    if (way_ == Way::exception) throw InjectedFailure();
    return true;
  }

  // A call that has no status to fail by.
  void no_status(const char* call) {
    if (way_ == Way::exception) static_cast<void>(status_of(call));
  }

  [[nodiscard]] const std::string& failed_call() const { return failed_call_; }

  int openings = 0;  // objects given out open
  int closings = 0;  // objects closed
  int second_closings = 0;

 private:
  bool is_fatal(const char* call) {
    if (count_++ != fatal_) return false;
    failed_call_ = call;
    return true;
  }

  Way way_;
  std::size_t fatal_;
  std::size_t count_ = 0;
  std::string failed_call_;
};

// An opened object whose closing may fail after it has closed, as a host's may.
template <class Interface>
class Faulty : public Interface {
 public:
  Faulty(Faults& injected, const char* close_call, std::unique_ptr<Interface> object)
      : faults(injected), real(std::move(object)), close_call_(close_call) {
    ++faults.openings;
  }

  Gcad::ErrorStatus close() override {
    if (closed_) ++faults.second_closings;
    closed_ = true;
    ++faults.closings;
    const auto status = real->close();
    return faults.status_of(close_call_) ? Gcad::eInvalidInput : status;
  }

  Faults& faults;
  std::unique_ptr<Interface> real;

 private:
  const char* close_call_;
  bool closed_ = false;
};

// Opens through `open` and wraps what comes.
template <class Wrapper, class Interface, class Open>
WithStatus<std::unique_ptr<Interface>> faulty_open(Faults& faults, const char* call, const char* close_call,
                                                   Open open) {
  if (faults.status_of(call)) return {Gcad::eInvalidInput, nullptr};
  WithStatus<std::unique_ptr<Interface>> opened = open();
  if (opened.second) opened.second = std::make_unique<Wrapper>(faults, close_call, std::move(opened.second));
  return opened;
}

using FaultyPoint = Faulty<GcDbPoint>;

struct FaultyText final : Faulty<GcDbText> {
  using Faulty::Faulty;
  Gcad::ErrorStatus setHeight(double height) override {
    return faults.status_of("Text.setHeight") ? Gcad::eInvalidInput : real->setHeight(height);
  }
  Gcad::ErrorStatus setTextStyle(GcDbObjectId style) override {
    return faults.status_of("Text.setTextStyle") ? Gcad::eInvalidInput : real->setTextStyle(style);
  }
};

struct FaultyGroup final : Faulty<GcDbGroup> {
  using Faulty::Faulty;
  Gcad::ErrorStatus append(const GcDbObjectIdArray& ids) override {
    return faults.status_of("Group.append") ? Gcad::eInvalidInput : real->append(ids);
  }
};

struct FaultyModelSpace final : Faulty<GcDbBlockTableRecord> {
  using Faulty::Faulty;
  WithStatus<GcDbObjectId> appendGcDbEntity(GcDbEntity& entity) override {
    if (faults.status_of("ModelSpace.append")) return {Gcad::eInvalidInput, {}};
    if (auto* point = dynamic_cast<FaultyPoint*>(&entity)) return real->appendGcDbEntity(*point->real);
    return real->appendGcDbEntity(*dynamic_cast<FaultyText&>(entity).real);
  }
};

struct FaultyBlockTable final : Faulty<GcDbBlockTable> {
  using Faulty::Faulty;
  WithStatus<std::unique_ptr<GcDbBlockTableRecord>> getAt(std::string_view name, GcDb::OpenMode mode) override {
    return faulty_open<FaultyModelSpace, GcDbBlockTableRecord>(faults, "BlockTable.getAt", "ModelSpace.close",
                                                               [&] { return real->getAt(name, mode); });
  }
};

struct FaultyDictionary final : Faulty<GcDbDictionary> {
  using Faulty::Faulty;
  bool has(std::string_view name) override {
    faults.no_status("Dictionary.has");
    return real->has(name);
  }
  WithStatus<GcDbObjectId> setAt(std::string_view name, GcDbGroup& group) override {
    if (faults.status_of("Dictionary.setAt")) return {Gcad::eInvalidInput, {}};
    return real->setAt(name, *dynamic_cast<FaultyGroup&>(group).real);
  }
};

class FaultyDatabase final : public DatabaseServices, public GcDbDatabase {
 public:
  FaultyDatabase(Faults& faults, DatabaseServices& real) : faults_(faults), real_(real) {}
  GcDbDatabase& gcdbWorkingDatabase() override {
    faults_.no_status("gcdbWorkingDatabase");
    return *this;
  }
  std::unique_ptr<GcDbPoint> newGcDbPoint(const GcGePoint3d& position) override {
    faults_.no_status("newGcDbPoint");
    return std::make_unique<FaultyPoint>(faults_, "Point.close", real_.newGcDbPoint(position));
  }
  std::unique_ptr<GcDbText> newGcDbText(const GcGePoint3d& position, std::string_view text) override {
    faults_.no_status("newGcDbText");
    return std::make_unique<FaultyText>(faults_, "Text.close", real_.newGcDbText(position, text));
  }
  std::unique_ptr<GcDbGroup> newGcDbGroup(std::string_view description, bool selectable) override {
    faults_.no_status("newGcDbGroup");
    return std::make_unique<FaultyGroup>(faults_, "Group.close", real_.newGcDbGroup(description, selectable));
  }
  WithStatus<std::unique_ptr<GcDbBlockTable>> getBlockTable(GcDb::OpenMode mode) override {
    return faulty_open<FaultyBlockTable, GcDbBlockTable>(
        faults_, "getBlockTable", "BlockTable.close", [&] { return real_.gcdbWorkingDatabase().getBlockTable(mode); });
  }
  WithStatus<std::unique_ptr<GcDbDictionary>> getGroupDictionary(GcDb::OpenMode mode) override {
    const char* call = mode == GcDb::kForRead ? "getGroupDictionary(read)" : "getGroupDictionary(write)";
    return faulty_open<FaultyDictionary, GcDbDictionary>(
        faults_, call, "Dictionary.close", [&] { return real_.gcdbWorkingDatabase().getGroupDictionary(mode); });
  }

 private:
  Faults& faults_;
  DatabaseServices& real_;
};

class FaultyCommandLine final : public CommandLine {
 public:
  FaultyCommandLine(Faults& faults, CommandLine& real) : faults_(faults), real_(real) {}
  PromptStatus gcedGetFileD(std::string_view title, std::string_view name, std::string_view filter, int flags,
                            resbuf& chosen) override {
    return faults_.status_of("gcedGetFileD") ? RTERROR : real_.gcedGetFileD(title, name, filter, flags, chosen);
  }
  std::pair<PromptStatus, std::string> gcedGetString(int spaces, std::string_view prompt) override {
    if (faults_.status_of("gcedGetString")) return {RTERROR, {}};
    return real_.gcedGetString(spaces, prompt);
  }
  PromptStatus gcedInitGet(int flags, std::string_view keywords) override {
    const auto status = real_.gcedInitGet(flags, keywords);
    return faults_.status_of("gcedInitGet") ? RTERROR : status;
  }
  std::pair<PromptStatus, std::string> gcedGetKword(std::string_view prompt) override {
    if (faults_.status_of("gcedGetKword")) return {RTERROR, {}};
    return real_.gcedGetKword(prompt);
  }
  void gcutPrintf(std::string_view text) override {
    faults_.no_status("gcutPrintf");
    real_.gcutPrintf(text);
  }
  PromptStatus gcedSetVar(std::string_view name, const resbuf& value) override {
    return faults_.status_of("gcedSetVar") ? RTERROR : real_.gcedSetVar(name, value);
  }

 private:
  Faults& faults_;
  CommandLine& real_;
};

struct FaultyStyling final : Styling {
  FaultyStyling(Faults& injected, Styling& styling) : faults(injected), real(styling) {}
  void nadaj_styl_pl(GcDbText& text) override {
    faults.no_status("nadaj_styl_pl");
    real.nadaj_styl_pl(text);
  }
  Faults& faults;
  Styling& real;
};

struct FaultyCore final : ReactiveCore {
  FaultyCore(Faults& injected, ReactiveCore& core) : faults(injected), real(core) {}
  std::string handle_z_oid(GcDbObjectId oid) override {
    return faults.status_of("handle_z_oid") ? std::string() : real.handle_z_oid(oid);
  }
  bool zapisz_reakt(GcDbObjectId oid, std::string_view kind, const std::vector<std::string>& handles) override {
    return !faults.status_of("zapisz_reakt") && real.zapisz_reakt(oid, kind, handles);
  }
  Faults& faults;
  ReactiveCore& real;
};

// Loads siblings as the console does, the ones with work to do wrapped. Loading the module itself never fails here.
class FaultyLoader final : public SiblingLoader {
 public:
  FaultyLoader(Faults& faults, SiblingLoader& real)
      : faults_(faults),
        real_(real),
        styling_(faults, load_sibling<Styling>(real, "vexo_cad_core")),
        core_(faults, load_sibling<ReactiveCore>(real, "vexo_reaktywne_core")) {}
  void own_folder_first() override {}
  SiblingModule& load(std::string_view name) override {
    if (name == "vexo_cad_core") return styling_;
    if (name == "vexo_boot") faults_.no_status("load vexo_boot");
    if (name != "vexo_reaktywne_core") return real_.load(name);
    faults_.no_status("load vexo_reaktywne_core");
    return core_;
  }

 private:
  Faults& faults_;
  SiblingLoader& real_;
  FaultyStyling styling_;
  FaultyCore core_;
};

enum class Ending { done, nothing_done, failed, leaves_the_command };

// The failure rules. By status: what is not named is ignored, or leaves one thing out. By exception: what is not named
// is reported by the guard of the whole import.
Ending rule(Way way, const std::string& call) {
  static const std::map<std::string, Ending> kByStatus = {
      {"gcedGetFileD", Ending::nothing_done},
      {"getBlockTable", Ending::failed},
      {"BlockTable.getAt", Ending::failed},
  };
  static const std::map<std::string, Ending> kByException = {
      {"gcedGetFileD", Ending::leaves_the_command},  // before the path is known nothing guards the command
      {"load vexo_boot", Ending::done},
      {"gcedSetVar", Ending::done},
      {"load vexo_reaktywne_core", Ending::done},
      {"handle_z_oid", Ending::done},
      {"zapisz_reakt", Ending::done},
      {"getGroupDictionary(read)", Ending::done},
      {"getGroupDictionary(write)", Ending::done},
      {"Dictionary.has", Ending::done},
      {"Dictionary.setAt", Ending::done},
      {"Dictionary.close", Ending::done},
      {"newGcDbGroup", Ending::done},
      {"Group.append", Ending::done},
      {"Group.close", Ending::done},
  };
  const auto& rules = way == Way::status ? kByStatus : kByException;
  const auto found = rules.find(call);
  if (found != rules.end()) return found->second;
  return way == Way::status ? Ending::done : Ending::failed;
}

Ending ending_of(const CommandFunction& import) {
  try {
    switch (import()) {
      case CommandOutcome::done:
        return Ending::done;
      case CommandOutcome::nothing_done:
        return Ending::nothing_done;
      case CommandOutcome::failed:
        return Ending::failed;
    }
  } catch (const InjectedFailure&) {
  }
  return Ending::leaves_the_command;
}

// One import with the call at `fatal` failing; the call's name, empty when there are not that many calls.
std::string import_with_fault(const std::string& path, Way way, std::size_t fatal) {
  ConsoleHost host("PL", "z\n", path);
  Faults faults(way, fatal);
  FaultyCommandLine command_line(faults, host.dialogue);
  FaultyDatabase database(faults, host.database);
  FaultyLoader siblings(faults, host.siblings);
  load_module({command_line, host, database, siblings});
  const Ending ending = ending_of(host.import);

  const std::string& call = faults.failed_call();
  EXPECT_EQ(host.database.open_count(), 0U) << "left open after " << call;
  EXPECT_EQ(faults.closings, faults.openings) << "after " << call;
  EXPECT_EQ(faults.second_closings, 0) << "after " << call;
  if (call.empty()) return call;
  EXPECT_EQ(ending, rule(way, call)) << call << " at " << fatal << "\n" << host.out.str();
  if (ending == Ending::failed && way == Way::exception) {
    EXPECT_TRUE(testing_support::in_order(host.out.str(), {"RuntimeError: injected"})) << call;
    EXPECT_EQ(host.notices.size(), 2U) << call;  // the start and the failure
  }
  if (ending == Ending::done) {
    EXPECT_EQ(host.points().size() + (call == "ModelSpace.append" ? host.labels().size() - 2 : 0), 3U) << call;
  }
  return call;
}

TEST(FaultInjection, EveryCallFailsInTurn) {
  const TemporaryFile file(
      "p.txt", "K1 5590435.97 5588346.40 392.34\nK2 5590429.97 5588342.20 393.60\nK3 5590428 5588334 394\n");
  for (const Way way : {Way::status, Way::exception}) {
    std::map<std::string, int> tried;
    for (std::size_t fatal = 0;; ++fatal) {
      const std::string call = import_with_fault(file.path(), way, fatal);
      if (call.empty()) break;
      ++tried[call];
    }
    // Else the test would hold for an import that calls nothing.
    EXPECT_EQ(tried["ModelSpace.append"], 6);
    EXPECT_EQ(tried["Point.close"], 3);
    EXPECT_EQ(tried["Dictionary.close"], 2);
    EXPECT_EQ(tried["gcedGetKword"], 1);
    EXPECT_EQ(tried.size(), way == Way::status ? 21U : 30U);
  }
}

}  // namespace
}  // namespace vexo_xyz_impl::host
