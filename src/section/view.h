#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a picture of a section is made of, in ft or m: x from the curb face or the middle of a ditch, y up from the
/// gutter line at the curb or from the bottom of a ditch. Nothing here is exaggerated; who paints stretches y.
namespace gullymark::section {

struct Point {
    double x = 0;
    double y = 0;
};

/// What a shape shows, in the order in which the parts lie over each other.
enum class Part : unsigned char {
    earth,
    slab,           // the gutter
    hollow,         // the inside of an inlet
    concrete,       // curb, hood and walls
    water,          // within the allowable spread
    beyond,         // the water beyond it
    metal,          // the bars of a grate, the lips of a slot
    ground,         // the line of gutter and pavement, of a ditch
    former_ground,  // where the gutter would be without the local depression
    surface,        // the level of the water
};

/// True for the parts that are lines, false for those that are areas.
[[nodiscard]] bool is_line(Part part);

/// A line or, closed by itself, an area.
struct Shape {
    Part part = Part::ground;
    std::vector<Point> points;
};

/// A measure with its two ends and its text, which has the unit: "T 10.209 ft".
struct Dimension {
    enum class Run : unsigned char { above, below, upright };
    Run run = Run::above;
    Point from;
    Point to;
    std::string text;
    bool beyond = false;  // what exceeds the allowable spread
};

/// A text that belongs to a point of the ground: "Sx 0.0208".
struct Mark {
    Point at;
    std::string text;
};

/// One section with its frame; every point lies within it.
struct View {
    std::string title;
    Point low;
    Point high;
    std::vector<Shape> shapes;
    std::vector<Dimension> dimensions;
    std::vector<Mark> marks;
    std::optional<Point> allowable;  // where the allowable spread ends
};

/// Adds a measure below the section. One with the same ends as another shares its line: "W, Wa 2.00 ft".
void add_below(View& view, Point from, Point to, std::string_view symbol, std::string_view value);

/// Adds a shape, unless it has fewer than two points.
void add_shape(View& view, Part part, std::vector<Point> points);

/// Puts the shapes in the order of their parts, and the frame around all that the view holds.
void finish(View& view);

/// The view seen from the other side: left is right.
[[nodiscard]] View mirrored(View view);

}  // namespace gullymark::section
