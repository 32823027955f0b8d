// The first program in C++: reads the pipes of an INI file, works on them and prints what came of it.
//
//     cd examples/cpp && zu-plant pipes.ini
#include <zu.hpp>
#include <zu_Host.h>

#include <iostream>

using namespace zu::operators;

namespace {

// Where the pipes begin: side by side, 500 apart.
zu::point_list starts(std::size_t count)
{
    zu::point_list points;
    for (Point at{}; points.size() < count; at += Vector{500, 0, 0})
        points.push_back(at);
    return points;
}

void print(const zu::field& item)
{
    std::cout << "  " << zu::to_utf8(item.name()) << " = ";
    if (const auto text = item.as<zu::wide_view>())
        std::cout << zu::to_utf8(*text);
    else if (const auto number = item.as<double>())
        std::cout << *number;
    else if (const auto point = item.as<Point>())
        std::cout << '(' << point->x << ", " << point->y << ", " << point->z << ')';
    std::cout << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    zu_Host_setBuiltIn(1); // no CAD around: the library stands in for the host
    const zu::ini file(argc > 1 ? argv[1] : "pipes.ini");
    const auto groups = file.groups("PIPE.");
    if (groups.empty()) {
        std::cerr << "no pipes in " << zu::to_utf8(file.path()) << '\n';
        return 1;
    }

    // From the plant's own axes into those of the site: turned by a quarter, and moved.
    const zu::transform into_site(zu::rotation::about_z(zu::radians(90)), Point{1000, 2000, 0});
    const auto points = starts(groups.size());
    auto start = points.begin();
    for (const zu::wide_view name : groups) {
        auto pipe = file.group(name);
        const auto size = pipe.get<double>("SIZE"); // the file holds text: not a number, but one can be made of it
        pipe.set("SIZE", size.converted().value_or(0.0));
        pipe.set("START", into_site * *start++);
        std::cout << zu::to_utf8(name) << '\n';
        for (const zu::field item : pipe)
            print(item);
    }
    return 0;
}
