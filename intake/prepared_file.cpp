#include "intake/prepared_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "intake/cell_number.h"
#include "vexo_xyz_impl/input/declared_columns.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/lines.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::size_t kPiece = std::size_t{1} << 20U;  // bytes written at once
constexpr std::size_t kShownCharacters = 120;          // of a noted row

constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

struct Places {
  std::size_t number;
  std::array<std::size_t, 2> coordinates;
  std::size_t height;
  std::size_t needed;  // cells that hold both coordinates
};

std::size_t place_of(const Roles& roles, Role role) {
  const auto found = std::find(roles.begin(), roles.end(), role);
  return found == roles.end() ? kNowhere : static_cast<std::size_t>(found - roles.begin());
}

Places places_of(const Roles& roles) {
  const bool known = has_role(roles, Role::easting);
  Places places{place_of(roles, Role::number),
                {place_of(roles, known ? Role::easting : Role::x), place_of(roles, known ? Role::northing : Role::y)},
                place_of(roles, Role::height),
                0};
  // What is said of the file's axes later must be true of this file too.
  if (!known && places.coordinates[1] < places.coordinates[0]) {
    std::swap(places.coordinates[0], places.coordinates[1]);
  }
  places.needed = std::max(places.coordinates[0], places.coordinates[1]) + 1;
  return places;
}

std::string shown(const Record& record) {
  std::string all;
  for (const std::string_view cell : record.cells) {
    if (!all.empty()) all += " | ";
    all += cell;
    if (all.size() > 4 * kShownCharacters) break;
  }
  const std::string_view beginning = text::first_characters(all, kShownCharacters);
  return beginning.size() < all.size() ? std::string(beginning) + " ..." : all;
}

// What the importer's reader would take for a separator, a line's end or a comment's sign.
bool needs_change(std::string_view number) {
  return text::begins_comment(number) || number.ends_with(':') || std::any_of(number.begin(), number.end(), [](char c) {
           return c == ';' || (static_cast<unsigned char>(c) < 0x20);
         });
}

std::string changed(std::string_view number) {
  while (text::begins_comment(number)) {
    number.remove_prefix(number.starts_with('#') ? 1 : 2);
    number = text::trim(number);
  }
  while (number.ends_with(':')) number.remove_suffix(1);  // "P1: 481367 5782936"
  std::string kept(number);
  for (char& c : kept) {
    if (c == ';') c = ',';
    if (static_cast<unsigned char>(c) < 0x20) c = ' ';
  }
  return std::string(text::trim(kept));
}

class Writer {
 public:
  Writer(const PreparedForm& form, const std::function<void(std::string_view)>& write)
      : form_(form), places_(places_of(form.roles)), write_(write) {
    piece_.reserve(kPiece + kPiece / 4);
    piece_ =
        vexo_xyz_impl::line_of_columns({true, has_role(form.roles, Role::easting), has_role(form.roles, Role::height)});
    piece_ += '\n';
  }

  void add(const Record& record) {
    ++account_.records;
    const std::size_t before = piece_.size();
    row_note_.reset();
    if (const auto reason = append_row(record)) {
      piece_.resize(before);
      if (record.line < form_.first_data_line) {
        account_.head.push_back({record.line, *reason, shown(record)});
      } else {
        note(record, *reason);
        ++account_.left_out;
      }
      return;
    }
    ++account_.points;
    if (row_note_) note(record, *row_note_);
    if (record.hidden) note(record, RowNote::hidden);
    extend_runs(record.line);
    if (piece_.size() >= kPiece) flush();
  }

  PreparedAccount finish() {
    flush();
    return std::move(account_);
  }

 private:
  void flush() {
    write_(piece_);
    piece_.clear();
  }

  void note(const Record& record, RowNote reason) { account_.noted.push_back({record.line, reason, shown(record)}); }

  // The reason why the record gives no row.
  std::optional<RowNote> append_row(const Record& record) {
    const auto& cells = record.cells;
    const std::size_t filled = record.cells.size();
    if (record.line <= form_.header_line) return RowNote::no_coordinate;
    if (filled < places_.needed) return RowNote::too_few_cells;
    bool lacks_height = places_.height >= filled;
    if (filled < form_.kinds.size() && !fits(cells, kNowhere)) {
      if (filled + 1 != form_.kinds.size() || !fits(cells, places_.height)) return RowNote::too_few_cells;
      lacks_height = true;
    }
    if (!form_.spreads.empty() && filled > form_.spreads.size() && has_moved(cells)) return RowNote::moved;
    append_point_number(record);
    for (const std::size_t place : places_.coordinates) {
      piece_ += ';';
      if (append_number(piece_, cells[place])) continue;
      if (cells[place].empty()) return RowNote::too_few_cells;
      return is_no_finite_number(cells[place]) ? RowNote::not_finite : RowNote::no_coordinate;
    }
    if (places_.height != kNowhere) {
      piece_ += ';';
      if (lacks_height || !append_number(piece_, cells[places_.height])) {
        if (form_.missing_height == MissingHeight::skip) return RowNote::no_height;
        piece_ += '0';
        row_note_ = RowNote::height_set_to_zero;
      }
    }
    piece_ += '\n';
    return std::nullopt;
  }

  // Whether both coordinates stand a cell further right: there they lie with the others, and here at least one does
  // not.
  [[nodiscard]] bool has_moved(const std::vector<std::string_view>& cells) const {
    bool is_outside = false;
    for (const std::size_t place : places_.coordinates) {
      if (place >= form_.spreads.size()) return false;
      const Spread& spread = form_.spreads[place];
      std::array<double, 2> values{};
      for (std::size_t i = 0; i < 2; ++i) {
        std::string plain;
        const bool is_number = append_number(plain, cells[place + i]);
        if (!is_number && i == 1) return false;
        values[i] = is_number ? vexo_xyz_impl::_num(plain) : std::numeric_limits<double>::infinity();
      }
      if (!(std::abs(values[1] - spread.median) < std::abs(values[0] - spread.median))) return false;
      const double span = spread.greatest - spread.least;
      is_outside |= values[0] < spread.least - span || values[0] > spread.greatest + span;
    }
    return is_outside;
  }

  // Whether the cells are of their columns' kinds, a cell missing before the column `gap`.
  [[nodiscard]] bool fits(const std::vector<std::string_view>& cells, std::size_t gap) const {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const CellKind kind = form_.kinds[i >= gap ? i + 1 : i];
      const bool is_number = number_form(cells[i]) != NumberForm::none;
      if (kind != CellKind::any && is_number != (kind == CellKind::number)) return false;
    }
    return true;
  }

  void append_point_number(const Record& record) {
    if (places_.number == kNowhere) return append_count(account_.points + 1);
    const std::string_view number =
        places_.number < record.cells.size() ? record.cells[places_.number] : std::string_view();
    if (!number.empty() && !needs_change(number)) {
      piece_ += number;
      return;
    }
    const std::string kept = changed(number);
    row_note_ = kept.empty() ? RowNote::number_made : RowNote::number_changed;
    if (kept.empty()) {
      piece_ += 'L';
      append_count(record.line);
    } else {
      piece_ += kept;
    }
  }

  void append_count(std::size_t count) {
    std::array<char, 20> digits{};
    piece_.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), count).ptr);
  }

  void extend_runs(std::size_t line) {
    if (!account_.runs.empty()) {
      LineRun& run = account_.runs.back();
      const std::size_t distance = line - last_line_;
      if (run.rows == 1) run.distance = distance;
      if (run.distance == distance && distance <= kMostDistance) {
        ++run.rows;
        last_line_ = line;
        return;
      }
      if (run.rows == 1) run.distance = 0;
    }
    account_.runs.push_back({line, 0, account_.points, 1});
    last_line_ = line;
  }

  static constexpr std::size_t kMostDistance = 2;  // a blank line after each row; more is a gap

  const PreparedForm& form_;
  Places places_;
  const std::function<void(std::string_view)>& write_;
  std::string piece_;
  std::optional<RowNote> row_note_;
  std::size_t last_line_ = 0;
  PreparedAccount account_;
};

}  // namespace

bool name_coordinates(const Roles& roles) {
  const bool axes = has_role(roles, Role::easting) && has_role(roles, Role::northing);
  const bool order = has_role(roles, Role::x) && has_role(roles, Role::y);
  const bool any_axis = has_role(roles, Role::easting) || has_role(roles, Role::northing);
  const bool any_order = has_role(roles, Role::x) || has_role(roles, Role::y);
  return (axes && !any_order) || (order && !any_axis);
}

PreparedAccount write_prepared(Records& records, const PreparedForm& form,
                               const std::function<void(std::string_view)>& write) {
  Writer writer(form, write);
  records.rewind();
  for (Record record; records.next(record);) writer.add(record);
  return writer.finish();
}

}  // namespace intake
