// The same drawing as whoever writes it in an afternoon, without tricks: the yardstick of the whole command.
//
//     floor FILE OUT.dxf
//
// The file is believed to be number;X;Y;H in plain digits with decimal commas, X to the north: nothing is detected,
// checked, decoded or asked, no number is compared with the others, and the drawing is left to the kernel.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

struct Point {
  std::string_view number;
  double y, x, z;
};

std::vector<char> contents(const char* path) {
  std::vector<char> bytes(std::filesystem::file_size(path));
  if (read(open(path, O_RDONLY), bytes.data(), bytes.size()) != std::ssize(bytes)) std::abort();
  std::replace(bytes.begin(), bytes.end(), ',', '.');
  return bytes;
}

std::vector<Point> points_of(const std::vector<char>& text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto field = [&](char mark) {
    const char* const begin = at;
    at = std::find(begin, end, mark);
    return std::string_view(begin, at++);
  };
  const auto number = [&](char mark) {
    const std::string_view digits = field(mark);
    double value = 0.0;
    std::from_chars(digits.begin(), digits.end(), value);
    return value;
  };
  std::vector<Point> points;
  while (at < end) points.push_back({.number = field(';'), .y = number(';'), .x = number(';'), .z = number('\n')});
  return points;
}

// 2 % of the larger extent, in tens.
double label_height(const std::vector<Point>& points) {
  const auto extent = [&](double Point::*axis) {
    const auto [least, most] = std::ranges::minmax(points, {}, axis);
    return most.*axis - least.*axis;
  };
  return std::round(std::max(extent(&Point::x), extent(&Point::y)) * 0.02 / 10.0) * 10.0;
}

struct Output {
  int file;
  char buffer[1 << 16] = {};
  char* at = buffer;

  void flush() {
    if (write(file, buffer, static_cast<std::size_t>(at - buffer)) < 0) std::abort();
    at = buffer;
  }
  char* room(std::ptrdiff_t bytes) {
    if (bytes > std::end(buffer) - at) flush();
    return at;
  }
  void add(std::string_view text) { at = std::copy(text.begin(), text.end(), room(std::ssize(text))); }
  void add(std::size_t handle) { at = std::to_chars(room(16), std::end(buffer), handle, 16).ptr; }
  void add(double value) { at = std::to_chars(room(400), std::end(buffer), value, std::chars_format::fixed).ptr; }

  template <class... Parts>
  void put(Parts... parts) {
    (add(parts), ...);
  }
};

void write_drawing(Output& out, const std::vector<Point>& points) {
  constexpr std::size_t kFirst = 0x40;  // handle of the first entity
  const std::size_t group = kFirst + 2 * points.size();
  const double height = label_height(points);
  const double offset = 0.6 * height;
  std::size_t handle = kFirst;
  const auto entity = [&](std::string_view kind, std::string_view subclass, double x, double y, double z) {
    out.put("0\n", kind, "\n5\n", handle++, "\n102\n{ACAD_REACTORS\n330\n", group,
            "\n102\n}\n330\n13\n100\nAcDbEntity\n8\n0\n100\n", subclass, "\n10\n", x, "\n20\n", y, "\n30\n", z, "\n");
  };

  out.put("0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n");
  for (const Point& point : points) {
    entity("POINT", "AcDbPoint", point.x, point.y, point.z);
    entity("TEXT", "AcDbText", point.x + offset, point.y + offset, point.z);
    out.put("40\n", height, "\n1\n", point.number, "\n7\nVEXO_PL\n100\nAcDbText\n");
  }
  out.put("0\nENDSEC\n0\nSECTION\n2\nOBJECTS\n");
  out.put("0\nDICTIONARY\n5\n19\n330\n0\n100\nAcDbDictionary\n3\nACAD_GROUP\n350\n1A\n");
  out.put("0\nDICTIONARY\n5\n1A\n330\n19\n100\nAcDbDictionary\n3\nPIKIETY\n350\n", group, "\n");
  out.put("0\nGROUP\n5\n", group, "\n330\n1A\n100\nAcDbGroup\n300\n\n70\n0\n71\n1\n");
  for (std::size_t member = kFirst; member < group; ++member) out.put("340\n", member, "\n");
  out.put("0\nENDSEC\n0\nEOF\n");
  out.flush();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::vector<char> text = contents(argv[1]);
  Output out{open(argv[2], O_WRONLY | O_CREAT | O_TRUNC, 0666)};
  write_drawing(out, points_of(text));
}
