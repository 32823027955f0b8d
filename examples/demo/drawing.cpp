#include "drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <limits>
#include <map>
#include <numbers>
#include <set>

namespace demo {
namespace {

// A place on the sheet, in its units; y points down.
struct Place
{
    double x = 0.0;
    double y = 0.0;
};

struct Box
{
    double x, y, width, height;
};

constexpr double sheetWidth = 1600;
constexpr double sheetHeight = 2140;
constexpr Box planBox = {60, 140, 1480, 810};
constexpr Box isometricBox = {60, 1060, 1480, 780};
constexpr double footer = 1880;
constexpr double smallestTaggedScale = 8; // sheet units a metre

class Svg
{
public:
    void put(const char* format, ...)
    {
        char buffer[1024];
        va_list arguments;
        va_start(arguments, format);
        std::vsnprintf(buffer, sizeof buffer, format, arguments);
        va_end(arguments);
        text += buffer;
    }
    void words(Place at, double size, const char* attributes, const std::string& content)
    {
        put("<text x='%.1f' y='%.1f' font-size='%.1f' %s>", at.x, at.y, size, attributes);
        for (const char letter : content)
            text += letter == '<' ? "&lt;" : letter == '>' ? "&gt;" : letter == '&' ? "&amp;" : std::string(1, letter);
        text += "</text>\n";
    }
    std::string text;
};

// Looks down on the plant, or at it from the south-west and above.
class View
{
public:
    View(bool isIsometric, const Box& box, const Plant& plant) : isometric(isIsometric)
    {
        Place low = {std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
        Place high = {-low.x, -low.y};
        const auto include = [&](const Point& point) {
            const Place place = map(point);
            low = {std::min(low.x, place.x), std::min(low.y, place.y)};
            high = {std::max(high.x, place.x), std::max(high.y, place.y)};
        };
        include({0.0, 0.0, 0.0});
        for (const Pipe& pipe : plant.pipes) {
            include(pipe.from);
            include(pipe.to);
        }
        for (const Equipment& each : plant.equipment) {
            for (int corner = 0; corner < 8; ++corner)
                include({corner & 1 ? each.high.x : each.low.x, corner & 2 ? each.high.y : each.low.y,
                         corner & 4 ? each.high.z : each.low.z});
        }
        const double width = std::max(high.x - low.x, 1.0);
        const double height = std::max(high.y - low.y, 1.0);
        const double fitting = std::min(box.width / width, box.height / height);
        origin = {box.x + (box.width - fitting * width) / 2 - fitting * low.x,
                  box.y + (box.height - fitting * height) / 2 - fitting * low.y};
        factor = fitting;
    }

    Place map(const Point& point) const
    {
        const double half = std::numbers::sqrt2 / 2;
        const double sine = 1 / std::sqrt(3.0); // of the camera's height, 35.26 degrees
        const double cosine = std::sqrt(2.0 / 3.0);
        const double x = isometric ? (point.x - point.y) * half : point.x;
        const double y = isometric ? (point.x + point.y) * half * sine + point.z * cosine : point.y;
        return {origin.x + factor * x, origin.y - factor * y};
    }
    // How near to the eye, for drawing from back to front.
    double nearness(const Point& point) const { return isometric ? point.z - point.x - point.y : point.z; }
    double perMetre() const { return factor * 1000; }
    double scaled(double millimetres) const { return factor * millimetres; }
    const bool isometric;

private:
    Place origin;
    double factor = 1.0;
};

// Something that is drawn when its turn comes.
struct Shape
{
    double nearness;
    std::string svg;
};

struct Stretch // a straight piece, for keeping labels off it
{
    Place from, to;
    double width;
    std::string line;
};

double distance(Place point, const Stretch& stretch)
{
    const double x = stretch.to.x - stretch.from.x;
    const double y = stretch.to.y - stretch.from.y;
    const double square = x * x + y * y;
    const double along =
        square == 0 ? 0.0
                    : std::clamp(((point.x - stretch.from.x) * x + (point.y - stretch.from.y) * y) / square, 0.0, 1.0);
    return std::hypot(point.x - stretch.from.x - along * x, point.y - stretch.from.y - along * y);
}

// Puts labels where they cover neither one another nor, if it can be had, a line that is not theirs.
class Labels
{
public:
    explicit Labels(const Box& area) : box(area) {}

    // Keeps labels off a place.
    void occupy(Place at, double radius) { taken.push_back({at, radius}); }

    // Writes a text along one of the stretches; false when there is no room.
    bool place(Svg& svg, const std::string& text, const std::vector<Stretch>& along, const std::vector<Stretch>& others,
               double size, const char* attributes)
    {
        const double width = 0.62 * size * static_cast<double>(text.size());
        Candidate best;
        best.cost = unusable;
        for (const Stretch& stretch : along) {
            const double length = std::hypot(stretch.to.x - stretch.from.x, stretch.to.y - stretch.from.y);
            if (length < 0.6 * width)
                continue;
            for (const double part : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8}) {
                for (const double side : {1.0, -1.0}) {
                    const Candidate candidate = at(stretch, length, part, side, width, size, others);
                    if (candidate.cost < best.cost)
                        best = candidate;
                }
            }
        }
        if (best.cost >= unusable)
            return false;
        for (const Place& dot : best.dots)
            occupy(dot, 0.6 * size);
        svg.put("<g transform='rotate(%.2f %.1f %.1f)'>", best.angle, best.middle.x, best.middle.y);
        svg.words({best.middle.x, best.middle.y + 0.35 * size}, size, attributes, text);
        svg.put("</g>\n");
        return true;
    }

private:
    static constexpr double unusable = 1000;
    struct Candidate
    {
        double cost = 0.0;
        double angle = 0.0; // degrees
        Place middle;
        std::vector<Place> dots; // along the text
    };
    struct Circle
    {
        Place at;
        double radius;
    };

    Candidate at(const Stretch& stretch, double length, double part, double side, double width, double size,
                 const std::vector<Stretch>& others) const
    {
        Candidate result;
        Place direction = {(stretch.to.x - stretch.from.x) / length, (stretch.to.y - stretch.from.y) / length};
        if (direction.x < -1e-9 || (std::abs(direction.x) <= 1e-9 && direction.y > 0))
            direction = {-direction.x, -direction.y}; // read from the left, or from below
        const double offset = side * (0.75 * size + stretch.width / 2);
        result.angle = std::atan2(direction.y, direction.x) * 180 / std::numbers::pi;
        result.middle = {stretch.from.x + part * (stretch.to.x - stretch.from.x) + offset * direction.y,
                         stretch.from.y + part * (stretch.to.y - stretch.from.y) - offset * direction.x};
        const int count = static_cast<int>(width / size) + 1;
        for (int dot = 0; dot <= count; ++dot) {
            const double along = width * (static_cast<double>(dot) / count - 0.5);
            result.dots.push_back({result.middle.x + along * direction.x, result.middle.y + along * direction.y});
        }
        result.cost = std::abs(part - 0.5);
        for (const Place& dot : result.dots) {
            if (dot.x < box.x || dot.y < box.y || dot.x > box.x + box.width || dot.y > box.y + box.height)
                result.cost += unusable;
            for (const Circle& circle : taken) {
                if (std::hypot(dot.x - circle.at.x, dot.y - circle.at.y) < circle.radius + 0.55 * size)
                    result.cost += unusable;
            }
            for (const Stretch& other : others) {
                if (other.line != stretch.line && distance(dot, other) < 0.5 * size + other.width / 2)
                    result.cost += 1;
            }
        }
        return result;
    }

    Box box;
    std::vector<Circle> taken;
};

struct ServiceTotal
{
    const char* colour;
    std::set<std::string> lines;
    double length = 0.0;
};

using Services = std::map<std::string, ServiceTotal>;

Services totalsOf(const Plant& plant)
{
    constexpr const char* colours[] = {"#1f6fb4", "#c8402b", "#2f8f4e", "#d0861a", "#7a4fa3", "#12899a", "#8a6d3b"};
    Services services;
    for (const Pipe& pipe : plant.pipes) {
        ServiceTotal& total = services[pipe.service];
        total.lines.insert(pipe.line);
        total.length += pipe.length;
    }
    std::size_t index = 0;
    for (auto& [name, total] : services)
        total.colour = colours[index++ % std::size(colours)];
    return services;
}

int axisOf(const Point& from, const Point& to)
{
    return from.x != to.x ? 0 : from.y != to.y ? 1 : 2;
}

bool areEqual(const Point& a, const Point& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

class Drawing
{
public:
    Drawing(Svg& output, const Plant& drawn, const Services& itsServices, bool isometric, const Box& itsBox)
        : svg(output), plant(drawn), services(itsServices), view(isometric, itsBox, drawn), box(itsBox), labels(itsBox)
    {
    }

    // Returns how many lines could not be tagged.
    int draw()
    {
        addRack();
        for (const Equipment& each : plant.equipment)
            addEquipment(each);
        addPipes();
        for (const Support& support : plant.supports)
            addSupport(support);
        for (const Fitting& fitting : plant.fittings)
            addFitting(fitting);
        std::stable_sort(shapes.begin(), shapes.end(),
                         [](const Shape& a, const Shape& b) { return a.nearness < b.nearness; });
        for (const Shape& shape : shapes)
            svg.text += shape.svg;
        return isTagged() ? writeTags() : 0;
    }

    const View& lens() const { return view; }
    bool isTagged() const { return view.perMetre() >= smallestTaggedScale; }

private:
    double penFor(double diameter) const { return std::clamp(view.scaled(diameter), 0.7, 9.0); }

    template <class Write>
    void add(const Point& where, Write write)
    {
        Svg piece;
        write(piece);
        shapes.push_back({view.nearness(where), std::move(piece.text)});
    }

    // Beams and columns stand where pipes are supported.
    void addRack()
    {
        std::map<double, std::vector<Point>> rows; // by the first Y of the row
        std::vector<Point> places;
        for (const Support& support : plant.supports)
            places.push_back(support.at);
        std::sort(places.begin(), places.end(), [](const Point& a, const Point& b) { return a.y < b.y; });
        double row = 0.0;
        double last = -1e12;
        for (const Point& place : places) {
            if (place.y - last > 6000)
                row = place.y;
            last = place.y;
            rows[row].push_back(place);
        }
        for (auto& [first, points] : rows) {
            const double low = points.front().y - 700;
            const double high = points.back().y + 700;
            std::set<double> beams;
            std::set<double> levels;
            for (const Point& point : points) {
                beams.insert(point.x);
                levels.insert(point.z);
            }
            for (const double x : beams)
                addFrame(x, low, high, levels);
        }
    }

    void addFrame(double x, double low, double high, const std::set<double>& levels)
    {
        const double pen = std::max(0.5, view.scaled(180));
        for (const double y : {low, high}) {
            add({x, y, 0}, [&](Svg& piece) {
                const Place foot = view.map({x, y, 0});
                const Place top = view.map({x, y, *levels.rbegin()});
                if (view.isometric)
                    piece.put("<path d='M%.1f %.1fL%.1f %.1f' stroke='#b9c0c6' stroke-width='%.1f'/>\n", foot.x, foot.y,
                              top.x, top.y, pen);
                else
                    piece.put("<rect x='%.1f' y='%.1f' width='%.1f' height='%.1f' fill='#9aa3ab'/>\n", foot.x - pen,
                              foot.y - pen, 2 * pen, 2 * pen);
            });
        }
        for (const double level : levels) {
            add({x, (low + high) / 2, level - 400}, [&](Svg& piece) {
                const Place from = view.map({x, low, level - 150});
                const Place to = view.map({x, high, level - 150});
                piece.put("<path d='M%.1f %.1fL%.1f %.1f' stroke='#c9cfd4' stroke-width='%.1f'/>\n", from.x, from.y,
                          to.x, to.y, pen);
            });
        }
    }

    void addEquipment(const Equipment& each)
    {
        const bool isRound = each.kind == "vessel" || each.kind == "tank";
        const Point centre = {(each.low.x + each.high.x) / 2, (each.low.y + each.high.y) / 2, each.low.z};
        add(centre, [&](Svg& piece) {
            constexpr const char* outline = "stroke='#6b7680' stroke-width='1'";
            const double radius = view.scaled((each.high.x - each.low.x) / 2);
            const Place middle = view.map(centre);
            const Place top = view.map({centre.x, centre.y, each.high.z});
            if (isRound && view.isometric) {
                const double flat = radius / std::sqrt(3.0);
                piece.put("<path d='M%.1f %.1fV%.1fA%.1f %.1f 0 0 0 %.1f %.1fV%.1f' fill='#dfe4e8' %s/>\n",
                          middle.x - radius, top.y, middle.y, radius, flat, middle.x + radius, middle.y, top.y,
                          outline);
                piece.put("<ellipse cx='%.1f' cy='%.1f' rx='%.1f' ry='%.1f' fill='#f1f4f6' %s/>\n", top.x, top.y,
                          radius, flat, outline);
            } else if (isRound) {
                piece.put("<circle cx='%.1f' cy='%.1f' r='%.1f' fill='#eef1f4' %s/>\n", middle.x, middle.y, radius,
                          outline);
            } else if (view.isometric) {
                addBlock(piece, each, outline);
            } else {
                const Place corner = view.map({each.low.x, each.high.y, 0});
                piece.put("<rect x='%.1f' y='%.1f' width='%.1f' height='%.1f' rx='%.1f' fill='#eef1f4' %s/>\n",
                          corner.x, corner.y, 2 * radius, view.scaled(each.high.y - each.low.y),
                          each.kind == "exchanger" ? view.scaled(700) : 2.0, outline);
            }
        });
    }

    // The three sides that are seen.
    void addBlock(Svg& piece, const Equipment& each, const char* outline) const
    {
        const Point& a = each.low;
        const Point& b = each.high;
        const auto face = [&](const char* fill, const std::array<Point, 4>& corners) {
            piece.put("<path d='");
            for (std::size_t index = 0; index < corners.size(); ++index) {
                const Place place = view.map(corners[index]);
                piece.put("%c%.1f %.1f", index == 0 ? 'M' : 'L', place.x, place.y);
            }
            piece.put("Z' fill='%s' %s stroke-linejoin='round'/>\n", fill, outline);
        };
        face("#d3d9de", {{{a.x, a.y, a.z}, {a.x, b.y, a.z}, {a.x, b.y, b.z}, {a.x, a.y, b.z}}});
        face("#e2e7ea", {{{a.x, a.y, a.z}, {b.x, a.y, a.z}, {b.x, a.y, b.z}, {a.x, a.y, b.z}}});
        face("#f1f4f6", {{{a.x, a.y, b.z}, {b.x, a.y, b.z}, {b.x, b.y, b.z}, {a.x, b.y, b.z}}});
    }

    void addPipes()
    {
        for (std::size_t index = 0; index < plant.pipes.size(); ++index) {
            const Pipe& pipe = plant.pipes[index];
            addRun(pipe, pipe.from, pipe.to);
            if (index + 1 == plant.pipes.size() || plant.pipes[index + 1].line != pipe.line ||
                areEqual(pipe.to, plant.pipes[index + 1].from))
                continue;
            const Pipe& next = plant.pipes[index + 1];
            if (axisOf(pipe.from, pipe.to) == axisOf(next.from, next.to))
                addRun(pipe, pipe.to, next.from); // through a valve
            else
                addElbow(pipe, next);
        }
    }

    void addStroke(const Pipe& pipe, const Point& where, const std::string& path)
    {
        const double pen = penFor(pipe.diameter);
        add(where, [&](Svg& piece) {
            // A light rim shows what passes in front of what.
            if (isTagged())
                piece.put("<path d='%s' stroke='#fff' stroke-width='%.1f' fill='none'/>\n", path.c_str(), pen + 2.4);
            piece.put("<path d='%s' stroke='%s' stroke-width='%.1f' stroke-linecap='round' fill='none'/>\n",
                      path.c_str(), services.at(pipe.service).colour, pen);
        });
    }

    void addRun(const Pipe& pipe, const Point& from, const Point& to)
    {
        const Place start = view.map(from);
        const Place end = view.map(to);
        if (axisOf(from, to) == 2 && !view.isometric)
            return; // seen from above: its elbow or its end shows it
        char path[96];
        std::snprintf(path, sizeof path, "M%.1f %.1fL%.1f %.1f", start.x, start.y, end.x, end.y);
        addStroke(pipe, {(from.x + to.x) / 2, (from.y + to.y) / 2, (from.z + to.z) / 2}, path);
        Stretch stretch = {start, end, penFor(pipe.diameter), pipe.line};
        // Pipes of one leg are one stretch for labels.
        if (!stretches.empty() && stretches.back().line == pipe.line &&
            distance(stretches.back().to, {start, start, 0, {}}) < 0.5 &&
            distance(stretches.back().to, {stretches.back().from, end, 0, {}}) < 0.5)
            stretches.back().to = end;
        else
            stretches.push_back(stretch);
    }

    void addElbow(const Pipe& pipe, const Pipe& next)
    {
        Point corner = pipe.to;
        switch (axisOf(pipe.from, pipe.to)) {
        case 0: corner.x = next.from.x; break;
        case 1: corner.y = next.from.y; break;
        default: corner.z = next.from.z; break;
        }
        const Place from = view.map(pipe.to);
        const Place by = view.map(corner);
        const Place to = view.map(next.from);
        char path[128];
        std::snprintf(path, sizeof path, "M%.1f %.1fQ%.1f %.1f %.1f %.1f", from.x, from.y, by.x, by.y, to.x, to.y);
        addStroke(pipe, corner, path);
    }

    void addSupport(const Support& support)
    {
        if (!isTagged())
            return;
        add({support.at.x, support.at.y, support.at.z + 500}, [&](Svg& piece) {
            const Place at = view.map(support.at);
            if (support.kind == "anchor")
                piece.put("<path d='M%.1f %.1fl7 7m-7 0l7 -7' stroke='#333' stroke-width='1.3'/>\n", at.x - 3.5,
                          at.y - 3.5);
            else
                piece.put("<circle cx='%.1f' cy='%.1f' r='1.7' fill='%s' stroke='#333' stroke-width='.7'/>\n", at.x,
                          at.y, support.kind == "guide" ? "#333" : "#fff");
        });
    }

    void addFitting(const Fitting& fitting)
    {
        if (!isTagged() || fitting.kind.find("valve") == std::string::npos)
            return;
        const Point ahead = {fitting.at.x + (fitting.axis == 'X' ? 1.0 : 0.0),
                             fitting.at.y + (fitting.axis == 'Y' ? 1.0 : 0.0),
                             fitting.at.z + (fitting.axis == 'Z' ? 1.0 : 0.0)};
        const Place at = view.map(fitting.at);
        const Place next = view.map(ahead);
        const double angle = std::atan2(next.y - at.y, next.x - at.x) * 180 / std::numbers::pi;
        const double size = std::max(5.0, view.scaled(fitting.dn + 60));
        labels.occupy(at, size);
        // In front of the pipes on both sides of it.
        add({fitting.at.x, fitting.at.y, fitting.at.z + (view.isometric ? 6000 : 300)}, [&](Svg& piece) {
            piece.put("<path transform='translate(%.1f %.1f) rotate(%.1f)' d='M%.1f %.1fL%.1f %.1fV%.1fL%.1f %.1fZ' "
                      "fill='%s' stroke='#222' stroke-width='1.1' stroke-linejoin='round'/>\n",
                      at.x, at.y, angle, -size, -size * .6, size, size * .6, -size * .6, -size, size * .6,
                      fitting.kind == "globe valve" ? "#222" : "#fff");
        });
    }

    int writeTags()
    {
        for (const Equipment& each : plant.equipment) {
            const Point centre = {(each.low.x + each.high.x) / 2, (each.low.y + each.high.y) / 2,
                                  view.isometric ? each.low.z : 0.0};
            // Beside the rack's side, where no pipe comes: below what stands south of it, above what stands north.
            const Place low = view.map({centre.x, each.low.y, each.low.z});
            const Place high = view.map({centre.x, each.high.y, each.low.z});
            const bool isSouth = view.isometric || low.y > box.y + box.height / 2;
            const Place at = view.isometric ? Place{view.map(centre).x, isometricFoot(each) + 15}
                                            : Place{low.x, isSouth ? low.y + 17 : high.y - 7};
            svg.words(at, 14, "text-anchor='middle' font-weight='bold' fill='#4a545c' class='halo'", each.tag);
            for (const double offset : {-20.0, -10.0, 0.0, 10.0, 20.0})
                labels.occupy({at.x + offset, at.y - 5}, 7);
        }
        std::map<std::string, std::vector<Stretch>> byLine;
        std::map<std::string, const Pipe*> firstPipe;
        for (const Stretch& stretch : stretches)
            byLine[stretch.line].push_back(stretch);
        for (const Pipe& pipe : plant.pipes)
            firstPipe.try_emplace(pipe.line, &pipe);
        int untagged = 0;
        for (const auto& [line, legs] : byLine) {
            const Pipe& pipe = *firstPipe[line];
            const std::string attributes =
                "text-anchor='middle' class='halo' fill='" + std::string(services.at(pipe.service).colour) + "'";
            if (!labels.place(svg, line + " DN" + std::to_string(pipe.dn), legs, stretches, 11, attributes.c_str()))
                ++untagged;
        }
        return untagged;
    }

    // The lowest place of the equipment on the sheet.
    double isometricFoot(const Equipment& each) const
    {
        const bool isRound = each.kind == "vessel" || each.kind == "tank";
        if (!isRound)
            return view.map(each.low).y;
        const Point centre = {(each.low.x + each.high.x) / 2, (each.low.y + each.high.y) / 2, each.low.z};
        return view.map(centre).y + view.scaled(each.high.x - each.low.x) / 2 / std::sqrt(3.0);
    }

    Svg& svg;
    const Plant& plant;
    const Services& services;
    View view;
    Box box;
    Labels labels;
    std::vector<Shape> shapes;
    std::vector<Stretch> stretches;
};

void drawScaleBar(Svg& svg, Place at, double perMetre)
{
    double length = 1; // metres: 1, 2 or 5 and zeros
    for (const double step : {2.0, 2.5, 2.0, 2.0, 2.5, 2.0, 2.0, 2.5}) {
        if (length * step * perMetre > 300)
            break;
        length *= step;
    }
    constexpr int parts = 5;
    const double width = length * perMetre / parts;
    for (int part = 0; part < parts; ++part)
        svg.put("<rect x='%.1f' y='%.1f' width='%.1f' height='7' fill='%s' stroke='#222'/>\n", at.x + part * width,
                at.y, width, part % 2 == 0 ? "#222" : "#fff");
    svg.words({at.x, at.y - 6}, 13, "text-anchor='middle'", "0");
    char label[32];
    std::snprintf(label, sizeof label, "%g m", length);
    svg.words({at.x + length * perMetre, at.y - 6}, 13, "text-anchor='middle'", label);
}

void drawNorth(Svg& svg, Place at, const Vector& north)
{
    const double angle = std::atan2(north.x, north.y) * 180 / std::numbers::pi;
    svg.put("<g transform='translate(%.1f %.1f) rotate(%.1f)'><circle r='30' fill='#fff' stroke='#222'/>"
            "<path d='M0 -40L11 22L0 13Z' fill='#222'/><path d='M0 -40L-11 22L0 13Z' fill='#fff' stroke='#222'/></g>\n",
            at.x, at.y, angle);
    const double radians = angle * std::numbers::pi / 180;
    svg.words({at.x + 53 * std::sin(radians), at.y - 53 * std::cos(radians) + 6}, 18,
              "text-anchor='middle' font-weight='bold'", "N");
}

// The plant's own axes.
void drawAxes(Svg& svg, const View& view)
{
    const Place origin = view.map({0, 0, 0});
    const Point ends[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    for (std::size_t axis = 0; axis < (view.isometric ? 3u : 2u); ++axis) {
        const Place unit = view.map(ends[axis]);
        const double length = std::hypot(unit.x - origin.x, unit.y - origin.y);
        const Place direction = {(unit.x - origin.x) / length, (unit.y - origin.y) / length};
        svg.put("<path d='M%.1f %.1fL%.1f %.1f' stroke='#222' stroke-width='1.4' marker-end='url(#tip)'/>\n", origin.x,
                origin.y, origin.x + 38 * direction.x, origin.y + 38 * direction.y);
        svg.words({origin.x + 52 * direction.x, origin.y + 52 * direction.y + 5}, 13, "text-anchor='middle'",
                  std::string(1, "XYZ"[axis]));
    }
    svg.put("<circle cx='%.1f' cy='%.1f' r='3.5' fill='#fff' stroke='#222' stroke-width='1.4'/>\n", origin.x, origin.y);
}

void drawLegend(Svg& svg, const Services& services, Place at)
{
    svg.words(at, 15, "font-weight='bold'", "Services");
    double y = at.y + 26;
    for (const auto& [name, total] : services) {
        svg.put("<path d='M%.1f %.1fh44' stroke='%s' stroke-width='6' stroke-linecap='round'/>\n", at.x + 3, y - 5,
                total.colour);
        svg.words({at.x + 62, y}, 14, "", name);
        char text[64];
        std::snprintf(text, sizeof text, "%zu %s", total.lines.size(), total.lines.size() == 1 ? "line" : "lines");
        svg.words({at.x + 300, y}, 14, "text-anchor='end'", text);
        std::snprintf(text, sizeof text, "%.1f m", total.length / 1000);
        svg.words({at.x + 420, y}, 14, "text-anchor='end'", text);
        y += 24;
    }
}

void drawSymbols(Svg& svg, Place at)
{
    svg.words(at, 15, "font-weight='bold'", "Symbols");
    const struct
    {
        const char* name;
        const char* picture; // around 0 0
    } symbols[] = {
        {"gate valve", "<path d='M-11 -6.6L11 6.6V-6.6L-11 6.6Z' fill='#fff' stroke='#222'/>"},
        {"globe valve", "<path d='M-11 -6.6L11 6.6V-6.6L-11 6.6Z' fill='#222' stroke='#222'/>"},
        {"anchor", "<path d='M-4 -4l8 8m-8 0l8 -8' stroke='#333' stroke-width='1.5'/>"},
        {"guide", "<circle r='3' fill='#333' stroke='#333'/>"},
        {"shoe", "<circle r='3' fill='#fff' stroke='#333'/>"},
    };
    double y = at.y + 26;
    for (const auto& symbol : symbols) {
        svg.put("<g transform='translate(%.1f %.1f)'>%s</g>\n", at.x + 14, y - 5, symbol.picture);
        svg.words({at.x + 40, y}, 14, "", symbol.name);
        y += 24;
    }
}

void drawTitleBlock(Svg& svg, const Sheet& sheet)
{
    const Box box = {1000, footer, sheetWidth - 1000 - 30, sheetHeight - footer - 30};
    svg.put("<rect x='%.1f' y='%.1f' width='%.1f' height='%.1f' fill='#fff' stroke='#222' stroke-width='1.5'/>\n",
            box.x, box.y, box.width, box.height);
    svg.words({box.x + 20, box.y + 38}, 24, "font-weight='bold'", sheet.title);
    svg.words({box.x + 20, box.y + 64}, 16, "fill='#444'", sheet.subtitle);
    svg.put("<path d='M%.1f %.1fh%.1f' stroke='#222'/>\n", box.x, box.y + 80, box.width);
    double y = box.y + 106;
    for (const std::string& note : sheet.notes) {
        svg.words({box.x + 20, y}, 14, "", note);
        y += 23;
    }
}

} // namespace

std::string drawPlant(const Plant& plant, const Sheet& sheet)
{
    const Services services = totalsOf(plant);
    Svg svg;
    svg.put("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 %g %g' width='%g' height='%g' "
            "font-family='DejaVu Sans, Verdana, Arial, sans-serif' fill='#222'>\n",
            sheetWidth, sheetHeight, sheetWidth, sheetHeight);
    svg.put("<style>.halo{paint-order:stroke;stroke:#fff;stroke-width:3px;stroke-linejoin:round}</style>\n"
            "<defs><marker id='tip' viewBox='0 0 10 10' refX='8' refY='5' markerWidth='7' markerHeight='7' "
            "orient='auto'><path d='M0 0L10 5L0 10Z'/></marker></defs>\n"
            "<rect width='100%%' height='100%%' fill='#fff'/>\n");
    svg.put("<rect x='20' y='20' width='%g' height='%g' fill='none' stroke='#222' stroke-width='2'/>\n",
            sheetWidth - 40, sheetHeight - 40);
    int untagged = 0;
    for (const bool isometric : {false, true}) {
        const Box& box = isometric ? isometricBox : planBox;
        svg.words({box.x, box.y - 62}, 22, "font-weight='bold'",
                  isometric ? "Isometric view from the south-west" : "Plan");
        Drawing drawing(svg, plant, services, isometric, box);
        untagged += drawing.draw();
        drawAxes(svg, drawing.lens());
        if (!isometric) {
            drawScaleBar(svg, {box.x + 330, box.y - 66}, drawing.lens().perMetre());
            drawNorth(svg, {sheetWidth - 90, box.y - 48}, sheet.north);
        }
    }
    if (untagged > 0)
        svg.words({50, footer - 12}, 13, "fill='#777'", std::to_string(untagged) + " tags left out for lack of room");
    drawLegend(svg, services, {50, footer + 30});
    drawSymbols(svg, {560, footer + 30});
    drawTitleBlock(svg, sheet);
    svg.put("</svg>\n");
    return std::move(svg.text);
}

} // namespace demo
