#include "console/arguments.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <filesystem>
#include <optional>
#include <string_view>

#include "console/prepare_arguments.h"
#include "siblings/vexo_boot/user_folder.h"
#include "siblings/vexo_rynek/rynek.h"
#include "vexo_xyz_impl/command/keywords.h"

namespace console {
namespace {

constexpr const char* kVersion = "vexo-xyz 0.1";

constexpr const char* kFooter =
    "Questions are answered by a keyword or any beginning of it that fits only one; Enter takes the default. Escape\n"
    "or the end of input leaves a question open: of the columns, and nothing is imported; of the axes, and the points\n"
    "are inserted as they stand in the file, their order not confirmed. Answers may be piped in, a line each.\n"
    "\n"
    "'vexo-xyz man' prints the manual page, 'vexo-xyz completion' what bash reads to complete the options.\n"
    "\n"
    "Exit codes:\n"
    "  0  points were imported and the drawing was saved\n"
    "  1  nothing was imported: cancelled, or the file holds no points\n"
    "  2  the command line was not understood\n"
    "  3  failure: a file that cannot be read, a drawing that cannot be saved, an error during the import";

// Where a user's defaults stand, if there is a place for them.
std::string config_file() {
  const std::filesystem::path folder = vexo_boot::user_folder("XDG_CONFIG_HOME", ".config");
  return folder.empty() ? "" : (folder / "vexo-xyz" / "config.toml").string();
}

// The height of letters in metres that is meant by "2.5", or by the scale of a plot, "1:500"; none by anything else.
std::optional<double> text_height_of(std::string_view text) {
  constexpr double kLettersOnPaper = 0.002;  // metres
  const bool is_scale = text.starts_with("1:");
  if (is_scale) text.remove_prefix(2);
  double value = 0.0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (is_scale) value *= kLettersOnPaper;
  constexpr double kSmallest = 0.001;
  constexpr double kLargest = 10000.0;
  return value >= kSmallest && value <= kLargest ? std::optional(value) : std::nullopt;
}

std::string text_height_fault(const std::string& text) {
  return text_height_of(text) ? "" : "neither a height from 0.001 to 10000 metres nor a scale as 1:500";
}

// The options that were given, as a command line has them, but for the files.
std::vector<std::string> words_of(const CLI::App& app, const Arguments& arguments) {
  std::vector<std::string> words;
  for (const CLI::Option* const option : app.get_options()) {
    if (option->get_lnames().empty() || option->count() == 0) continue;
    if (option == app.get_config_ptr() && option->as<std::string>() == config_file()) continue;
    const std::string name = "--" + option->get_lnames().front();
    if (option->get_expected_max() == 0) {
      if (option->as<bool>()) words.push_back(name);  // a file of defaults may also deny it
      continue;
    }
    const auto value = option->as<std::string>();
    words.push_back(name);
    if (value.starts_with('-')) {
      words.back().append("=").append(value);
    } else {
      words.push_back(value);
    }
  }
  if (app.count("--market") == 0)
    words.insert(words.end(), {"--market", vexo_rynek::Market(arguments.choice.market).rynek()});
  return words;
}

// What is wrong with the options, of which some may stand among the defaults.
std::string failure_message(const CLI::App* app, const CLI::Error& error) {
  std::string message = CLI::FailureMessage::simple(app, error);
  const CLI::Option* const config = app->get_config_ptr();
  const std::string path = config->count() == 0 ? config_file() : config->as<std::string>();
  const auto kind = static_cast<CLI::ExitCodes>(error.get_exit_code());
  const bool is_of_values = kind != CLI::ExitCodes::ExtrasError && kind != CLI::ExitCodes::RequiredError;
  std::error_code ignored;
  if (is_of_values && std::filesystem::exists(path, ignored)) message += "Defaults are read from " + path + "\n";
  return message;
}

// What all programs take for the name of a layer.
std::string layer_fault(const std::string& name) {
  constexpr std::size_t kLongest = 255;
  if (name.empty() || name.size() > kLongest) return "a layer's name has 1 to 255 characters";
  const bool is_sound = std::none_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < ' ' || std::string_view("<>/\\\":;?*|,=`").find(c) != std::string_view::npos;
  });
  return is_sound ? "" : "a layer's name holds none of < > / \\ \" : ; ? * | , = `";
}

void declare_files(CLI::App& app, Arguments& arguments) {
  app.add_option("FILE", arguments.files,
                 "File of surveyed points: delimited text or .xlsx. Without it the path is asked for")
      ->configurable(false);
  app.add_option("-o,--output", arguments.output,
                 "Drawing to write, .dxf where the name has no extension. Default: beside FILE, with its name, or the "
                 "next free "
                 "one (_2, _3 ...)")
      ->type_name("OUT.dxf")
      ->configurable(false);
  app.add_option("--into", arguments.into,
                 "Drawing that the points are added to: an ASCII DXF file of any version. The former file stays as "
                 "DRAWING.dxf.bak")
      ->type_name("DRAWING.dxf")
      ->excludes("--output")
      ->configurable(false);
  app.add_flag("--force", arguments.force, "Replace the drawing given by -o if it exists")->configurable(false);
  app.add_option("--report", arguments.report,
                 "Write what came of the import: every row without a point, every doubt; JSON where the name ends with "
                 ".json, else text")
      ->type_name("OUT.txt|OUT.json")
      ->configurable(false);
  app.add_option("--preview", arguments.preview, "Draw a picture of the points: labels, scale bar, north, suspects")
      ->type_name("OUT.svg")
      ->configurable(false);
}

void declare_answers(CLI::App& app, Arguments& arguments) {
  app.add_flag("--prepare", arguments.prepare,
               "Make a file that is not read as it stands into one that is (see 'prepare'), and import that, unasked");
  app.add_option("--first-column", arguments.first_column,
                 "What the first column holds, should the file not tell: 'number' or 'coordinate'")
      ->type_name("number|coordinate")
      ->check(CLI::IsMember({"number", "coordinate"}));
  app.add_option(
         "--axes", arguments.axes,
         "What to do with X and Y, should more than one reading fit: 'keep' or 'swap'; or, whatever fits, which "
         "of the two coordinates stands first: 'north-first' or 'east-first'")
      ->type_name("keep|swap|north-first|east-first")
      ->check(CLI::IsMember({"keep", "swap", "north-first", "east-first"}));
}

void declare_drawing(CLI::App& app, Arguments& arguments) {
  const CLI::Validator layer(layer_fault, "");
  const Layers usual;
  app.add_option("--layer", arguments.point_layer, "Layer of the points. Default: " + usual.points)
      ->type_name("NAME")
      ->check(layer);
  app.add_option("--label-layer", arguments.label_layer, "Layer of the numbers. Default: the points', with _NR")
      ->type_name("NAME")
      ->check(layer);
  app.add_option("--height-layer", arguments.height_layer, "Layer of the heights. Default: the points', with _H")
      ->type_name("NAME")
      ->check(layer);
  app.add_option("--heights", arguments.height_decimals,
                 "Write the heights below the numbers, with so many decimals. Default of these: 2")
      ->type_name("[DECIMALS]")
      ->expected(0, 1)
      ->check(CLI::Range(0, 6));
  app.add_option(
         "--text-height,--scale", arguments.text_size,
         "Height of the letters in metres, or the scale of a plot on which they are 2 mm high. Default: a round "
         "value near 2 % of the points' extent")
      ->type_name("METRES")
      ->check(CLI::Validator(text_height_fault, ""));
  app.add_option("--group-selectable", arguments.group_selectable,
                 "Whether picking one point picks the whole group: 'yes', the default, or 'no'")
      ->type_name("yes|no")
      ->check(CLI::IsMember({"yes", "no"}));
  app.add_option("--dxf", arguments.dxf, "Version of a new drawing. Default: 2007")
      ->type_name("2000|2004|2007|2018")
      ->check(CLI::IsMember({"2000", "2004", "2007", "2018"}));
}

DxfVersion version_of(std::string_view name) {
  if (name == "2000") return DxfVersion::r2000;
  if (name == "2004") return DxfVersion::r2004;
  return name == "2018" ? DxfVersion::r2018 : DxfVersion::r2007;
}

Layers layers_of(const Arguments& arguments) {
  Layers layers;
  if (!arguments.point_layer.empty()) {
    layers.points = arguments.point_layer;
    const bool is_of_all = layers.points == "0";
    layers.labels = layers.points + (is_of_all ? "" : "_NR");
    layers.heights = layers.points + (is_of_all ? "" : "_H");
  }
  if (!arguments.label_layer.empty()) layers.labels = arguments.label_layer;
  if (!arguments.height_layer.empty()) layers.heights = arguments.height_layer;
  return layers;
}

DrawingWishes wishes_of(const CLI::App& app, const Arguments& arguments) {
  DrawingWishes wishes;
  wishes.layers = layers_of(arguments);
  if (app.count("--heights") > 0) wishes.height_decimals = arguments.height_decimals;
  wishes.text_height = text_height_of(arguments.text_size);
  wishes.group_selectable = arguments.group_selectable != "no";
  wishes.version = version_of(arguments.dxf);
  return wishes;
}

}  // namespace

void declare_import(CLI::App& app, Arguments& arguments) {
  app.set_version_flag("--version", kVersion);
  app.footer(kFooter);
  app.set_config("--config", config_file(),
                 "File of defaults, an option a line, as lang=\"DE\" or heights=2. Default: "
                 "~/.config/vexo-xyz/config.toml");
  app.allow_config_extras(CLI::config_extras_mode::error);
  app.failure_message(failure_message);
  declare_files(app, arguments);
  declare_answers(app, arguments);
  declare_drawing(app, arguments);
  app.add_flag("--unattended", arguments.unattended,
               "Ask nothing: a file that leaves a question open is set aside, as of several FILEs each is");
  app.add_option("--jobs", arguments.jobs, "How many of several FILEs are imported at a time")
      ->type_name("N")
      ->check(CLI::Range(1, 256));
  app.add_flag("--quiet", arguments.quiet, "Say nothing but questions, doubts and failures");
  app.add_flag("--json", arguments.json,
               "Say on standard output what came of it as JSON; everything else goes to standard error");
  declare_choice(app, arguments.choice);
}

std::vector<std::string> separate_arguments(const CLI::App& app, int argc, const char* const* argv) {
  const auto takes_next = [&app](const std::string& argument) {
    const CLI::Option* const option = app.get_option_no_throw(argument);
    return option != nullptr && option->get_expected_min() > 0 && option->nonpositional();
  };
  std::vector<std::string> arguments(argv + std::min(1, argc), argv + argc);
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    std::string& argument = arguments[i];
    const std::string next = i + 1 < arguments.size() ? arguments[i + 1] : "";
    const bool has_decimals = next.size() == 1 && std::isdigit(static_cast<unsigned char>(next[0])) != 0;
    if (takes_next(argument)) {
      ++i;
    } else if (argument == "--heights" && !has_decimals) {
      argument += "=2";
    }
  }
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

void check(const CLI::App& app, const Arguments& arguments) {
  check_market(arguments.choice);
  if (app.count("-o") > 0 && arguments.output.empty()) throw CLI::ValidationError("--output", "a drawing needs a name");
  if (arguments.output == "-")
    throw CLI::ValidationError("--output", "a drawing is a file; it is not written to standard output");
  if (arguments.force && app.count("-o") == 0) throw CLI::RequiresError("--force", "--output");
  if (arguments.files.size() < 2) return;
  for (const char* const option : {"--output", "--report", "--preview"})
    if (app.count(option) > 0) throw CLI::ValidationError(option, "is for one FILE; --json tells of several");
}

SessionOptions session_options(const CLI::App& app, const Arguments& arguments, bool interactive) {
  SessionOptions options;
  options.prepare = arguments.prepare;
  options.interactive = interactive;
  options.words = words_of(app, arguments);
  options.quiet = arguments.quiet;
  options.unattended = arguments.unattended;
  if (!arguments.files.empty()) options.file = arguments.files.front();
  if (app.count("-o") > 0) options.output = with_extension(arguments.output);
  if (app.count("--into") > 0) options.into = arguments.into;
  options.force = arguments.force;
  if (app.count("--report") > 0) options.report = arguments.report;
  if (app.count("--preview") > 0) options.preview = arguments.preview;
  options.wishes = wishes_of(app, arguments);
  options.choice = arguments.choice;
  if (!arguments.first_column.empty()) {
    options.answers.push_back(
        {"--first-column", arguments.first_column == "number" ? vexo_xyz_impl::kNumer : vexo_xyz_impl::kWspolrzedna});
  }
  if (arguments.axes.ends_with("-first")) {
    using vexo_xyz_impl::host::AxisOrder;
    options.axes = arguments.axes == "north-first" ? AxisOrder::north_first : AxisOrder::east_first;
  } else if (!arguments.axes.empty()) {
    options.answers.push_back({"--axes", arguments.axes == "keep" ? vexo_xyz_impl::kTak : vexo_xyz_impl::kZamien});
  }
  return options;
}

}  // namespace console
