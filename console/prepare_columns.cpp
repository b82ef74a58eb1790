#include "console/prepare_columns.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "console/dialogue/shown_text.h"
#include "console/report/reasons.h"
#include "console/texts/say.h"
#include "intake/columns.h"
#include "intake/header_words.h"
#include "intake/role_spelling.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

using intake::Decision;
using intake::Ground;
using intake::Role;
using intake::Roles;
using intake::TableShape;
using intake::Verdict;
using vexo_xyz_impl::T;

constexpr std::size_t kCellsShown = 12;  // of a row in a question

std::string_view ground_key(Ground ground) {
  switch (ground) {
    case Ground::names:
      return "konsola.prep_z_nazw";
    case Ground::projection_line:
      return "konsola.prep_z_ukladu";
    case Ground::labels:
      return "konsola.prep_z_etykiet";
    case Ground::numbering:
      return "konsola.prep_z_numeracji";
    case Ground::order:
      break;
  }
  return "konsola.prep_z_kolejnosci";
}

class Choosing {
 public:
  Choosing(const TableShape& shape, LineSource& lines) : shape_(shape), lines_(lines) {}

  ChosenColumns decided() {
    const Decision decision = intake::decide(shape_);
    switch (decision.verdict) {
      case Verdict::clear:
        say("konsola.prep_kolumny",
            {told(decision.proposals.front().roles), T(ground_key(decision.proposals.front().ground))});
        tell_order(decision.proposals.front().roles);
        return {decision.proposals.front().roles};
      case Verdict::maybe_degrees:
      case Verdict::unclear:
        return chosen(decision);
      case Verdict::degrees:
        say("konsola.prep_stopnie");
        break;
      case Verdict::sexagesimal:
        say("konsola.powod", {reason_named("dms").text});
        break;
      case Verdict::no_coordinates:
        say("konsola.prep_bez_wspolrzednych");
        break;
    }
    return {};
  }

  ChosenColumns given(const std::string& columns) {
    const auto roles = intake::roles_for(shape_, columns);
    if (!roles) {
      std::string names;
      for (std::size_t i = 0; i < shape_.width; ++i) {
        names += (i == 0 ? "" : ", ") + std::to_string(i + 1);
        if (!shape_.names[i].empty()) names += " " + shape_.names[i];
      }
      const std::string twice(intake::ambiguous_name(shape_, columns));
      if (twice.empty()) {
        say("konsola.prep_zle_kolumny", {columns, names});
      } else {
        say("konsola.prep_nazwa_dwa_razy", {twice, names});
      }
      return {std::nullopt, kUsage};
    }
    if (is_short(*roles)) return {std::nullopt, kUsage};
    if (are_degrees(*roles)) return {};
    tell_order(*roles);
    return {roles};
  }

 private:
  static void print(std::string_view text) { vexo_xyz_impl::command_line().gcutPrintf(text); }

  void warn_of_degrees() {
    if (!std::exchange(is_warned_, true)) say("konsola.prep_moze_stopnie");
  }

  // Tells what is against the roles; whether that forbids them.
  bool are_degrees(const Roles& roles) {
    const Verdict verdict = intake::judged(shape_, roles);
    if (verdict == Verdict::clear) return false;
    if (verdict == Verdict::maybe_degrees) {
      // No grid's eastings and northings are that small; metres of a local system may be.
      const bool are_of_a_grid = intake::has_role(roles, Role::easting);
      are_of_a_grid ? say("konsola.prep_stopnie_zamiast_siatki") : warn_of_degrees();
      return are_of_a_grid;
    }
    if (verdict == Verdict::sexagesimal) {
      say("konsola.powod", {reason_named("dms").text});
    } else {
      say("konsola.prep_stopnie");
    }
    return true;
  }

  // Tells that roles are for fewer or more columns than there are; whether they seem to name the wrong ones.
  bool is_short(const Roles& roles) {
    const std::size_t columns = shape_.width;
    if (roles.size() == columns) return false;
    const auto is_filled = [](const intake::ColumnContent& column) { return column.filled > 0; };
    const bool is_less = roles.size() < columns;
    if (is_less && std::none_of(shape_.columns.begin() + static_cast<std::ptrdiff_t>(roles.size()),
                                shape_.columns.end(), is_filled)) {
      return false;
    }
    say(is_less ? "konsola.prep_mniej_rol" : "konsola.prep_wiecej_rol",
        {std::to_string(columns), std::to_string(roles.size())});
    const bool seem_short = intake::seem_one_short(shape_, roles);
    if (seem_short) {
      const auto first = std::find_if(roles.begin(), roles.end(), [](Role role) {
        return role != Role::number && role != Role::height && role != Role::other;
      });
      say("konsola.prep_przesuniete", {std::to_string(first - roles.begin() + 1)});
    }
    return seem_short;
  }

  // The prepared file's X and Y are the file's first and second coordinate, which it may call otherwise.
  void tell_order(const Roles& roles) {
    const auto place = [&](Role role) {
      return static_cast<std::size_t>(std::find(roles.begin(), roles.end(), role) - roles.begin());
    };
    const std::size_t x = place(Role::x);
    const std::size_t y = place(Role::y);
    if (x == roles.size() || y == roles.size()) return;
    const auto named = [&](std::size_t column) {
      return column < shape_.names.size() ? intake::header_name(shape_.names[column]).named : intake::Named::nothing;
    };
    const std::size_t first = std::min(x, y);
    if (x < y && named(first) != intake::Named::y) return;
    say("konsola.prep_kolejnosc", {std::to_string(first + 1), std::to_string(std::max(x, y) + 1)});
  }

  // "nr = POINT, n = NORTH", or the roles alone where there are no names.
  [[nodiscard]] std::string told(const Roles& roles) const {
    std::string all;
    for (std::size_t i = 0; i < roles.size(); ++i) {
      if (roles[i] == Role::other) continue;
      all += (all.empty() ? "" : ", ") + intake::spelled({roles[i]}) + " = ";
      all += i < shape_.names.size() && !shape_.names[i].empty() ? shape_.names[i] : std::to_string(i + 1);
    }
    return all;
  }

  ChosenColumns chosen(const Decision& decision) {
    if (decision.verdict == Verdict::maybe_degrees) warn_of_degrees();
    say("konsola.prep_pytanie");
    if (shape_.header_line != 0) print(row_text(shape_.loose_names.empty() ? shape_.names : shape_.loose_names));
    for (const auto& row : shape_.preview) print(row_text(row));
    say("konsola.prep_mozliwe");
    for (std::size_t i = 0; i < decision.proposals.size(); ++i) {
      const Roles& roles = decision.proposals[i].roles;
      print("  " + std::to_string(i + 1) + ": " + intake::spelled(roles) + "  (" + told(roles) + ")\n");
    }
    while (const auto typed = lines_.read_line(without_control_characters(T("konsola.prep_wybor")), Completion::none)) {
      const std::string answer(vexo_xyz_impl::text::trim(*typed));
      const auto roles = meant(decision, answer);
      if (roles && !is_short(*roles)) {
        if (are_degrees(*roles)) return {};
        tell_order(*roles);
        return {roles};
      }
      if (!roles) say("konsola.prep_zly_wybor", {answer});
      if (lines_.at_end()) break;
    }
    say("konsola.prep_bez_wyboru", {"--columns " + intake::spelled(decision.proposals.front().roles)});
    return {};
  }

  [[nodiscard]] std::optional<Roles> meant(const Decision& decision, const std::string& answer) const {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(answer.data(), answer.data() + answer.size(), number);
    if (error == std::errc() && end == answer.data() + answer.size()) {
      const bool is_listed = number >= 1 && number <= decision.proposals.size();
      return is_listed ? std::optional(decision.proposals[number - 1].roles) : std::nullopt;
    }
    return intake::roles_for(shape_, answer);
  }

  static std::string row_text(const std::vector<std::string>& cells) {
    std::string text = "  ";
    for (std::size_t i = 0; i < std::min(cells.size(), kCellsShown); ++i) text += (i == 0 ? "" : " | ") + cells[i];
    return text + (cells.size() > kCellsShown ? " | ...\n" : "\n");
  }

  const TableShape& shape_;
  LineSource& lines_;
  bool is_warned_ = false;
};

}  // namespace

ChosenColumns choose_columns(const intake::SeenTable& table, const std::optional<std::string>& columns,
                             LineSource& lines) {
  Choosing choosing(table.shape(), lines);
  return columns ? choosing.given(*columns) : choosing.decided();
}

}  // namespace console
