// The main job: a report on a plant. Its settings come from zu.ini, its tables through ODBC; it prints the bill of
// material and writes a drawing.
#include "commands.h"
#include "drawing.h"
#include "plant.h"
#include "text.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>
#include <optional>
#include <tuple>

namespace demo {
namespace {

// A setting of group REPORT, with aliases and %NAME% references replaced; empty without one.
Wide setting(const zu_wchar* key)
{
    const zu_wchar* const value = zu_Env_getIni(ZU_W("REPORT"), key);
    return value == nullptr ? Wide() : Wide(zu_Env_expandStr(Wide(value).c_str()));
}

// A text of the report, by way of the catalogue: a host with a translator gives it in the user's language.
std::string message(const char* text)
{
    return utf8(zu_Msg(text, "REPORT", 0));
}

// The numbers of a setting, which commas separate.
std::vector<double> numbersOf(const zu_wchar* key)
{
    std::vector<double> numbers;
    const Strings words(zu_StrList_fromDelimitedString(setting(key).c_str(), ZU_W(",")));
    for (zu_StrList_start(words.get()); zu_StrList_eol(words.get()) == 0; zu_StrList_next(words.get()))
        numbers.push_back(std::atof(utf8(zu_StrList_getCurr(words.get())).c_str()));
    return numbers;
}

// Between the plant's own system and the site's: the plant's origin as easting, northing and elevation in millimetres,
// and the angle in degrees from east to its X axis.
class SiteSystem
{
public:
    SiteSystem(const Point& plantOrigin, double degrees) : toSite(zu_TMatrix_create()), toPlant(zu_TMatrix_create())
    {
        const double angle = degrees * std::numbers::pi / 180;
        const Point origin = {0, 0, 0};
        const Point x = {1000, 0, 0};
        const Point y = {0, 1000, 0};
        const Point siteX = {plantOrigin.x + 1000 * std::cos(angle), plantOrigin.y + 1000 * std::sin(angle),
                             plantOrigin.z};
        const Point siteY = {plantOrigin.x - 1000 * std::sin(angle), plantOrigin.y + 1000 * std::cos(angle),
                             plantOrigin.z};
        zu_TMatrix_createFromUCS(toSite, &origin, &x, &y, &plantOrigin, &siteX, &siteY);
        zu_TMatrix_createFromUCS(toPlant, &plantOrigin, &siteX, &siteY, &origin, &x, &y);
        const Point northOfIt = {plantOrigin.x, plantOrigin.y + 1000, plantOrigin.z};
        Point end = {};
        zu_TMatrix_xform(&end, toPlant, &northOfIt);
        zu_Vector_set(&north, end.x, end.y, end.z);
    }
    ~SiteSystem()
    {
        zu_TMatrix_destroy(toSite);
        zu_TMatrix_destroy(toPlant);
    }
    SiteSystem(const SiteSystem&) = delete;
    SiteSystem& operator=(const SiteSystem&) = delete;

    Point place(const Point& inPlant) const
    {
        Point result = {};
        zu_TMatrix_xform(&result, toSite, &inPlant);
        return result;
    }
    Vector north; // in the plant's system

private:
    TMatrix* toSite;
    TMatrix* toPlant;
};

std::string coordinates(const Point& site)
{
    char text[96];
    std::snprintf(text, sizeof text, "E %.3f  N %.3f  EL %+.3f", site.x / 1000, site.y / 1000, site.z / 1000);
    return text;
}

// The material of a class of pipe, from the class's own file.
std::string materialOf(const std::string& spec)
{
    static std::map<std::string, std::string> known;
    const auto [entry, isNew] = known.try_emplace(spec);
    if (isNew) {
        const zu_wchar* const file = zu_Env_getIni(ZU_W("SPECS"), wide(spec).c_str());
        zu_wchar path[ZU_SYS_PATH_SIZE + 1];
        zu_Sys_getSpecName(path, nullptr, file == nullptr ? wide(spec).c_str() : Wide(file).c_str());
        const zu_wchar* const material = zu_Ini_get(path, ZU_W("CLASS"), ZU_W("Material"));
        entry->second = material == nullptr ? "?" : utf8(material);
    }
    return entry->second;
}

struct Position
{
    int pieces = 0;
    double length = 0.0; // m, of pipes
    double weight = 0.0; // kg
};

// Kilograms of a metre of pipe.
double unitWeight(const Pipe& pipe)
{
    constexpr double steel = 7'850e-6; // kg for a millimetre squared, a metre long
    return std::numbers::pi * (pipe.diameter - pipe.wall) * pipe.wall * steel;
}

// What is alike is one position: in the order of component, size and class.
using Bill = std::map<std::tuple<std::string, int, std::string, std::string>, Position>;

Bill billOf(const Plant& plant)
{
    Bill bill;
    for (const Pipe& pipe : plant.pipes) {
        Position& position = bill[{"pipe", pipe.dn, pipe.spec, pipe.schedule}];
        ++position.pieces;
        position.length += pipe.length / 1000;
        position.weight += pipe.length / 1000 * unitWeight(pipe);
    }
    for (const Fitting& fitting : plant.fittings) {
        Position& position = bill[{fitting.kind, fitting.dn, fitting.spec, ""}];
        ++position.pieces;
        position.weight += fitting.weight;
    }
    for (const Support& support : plant.supports)
        ++bill[{"support, " + support.kind, 0, "", ""}].pieces;
    return bill;
}

template <class... Args>
std::string formatted(const char* format, Args... args)
{
    char text[64];
    std::snprintf(text, sizeof text, format, args...);
    return text;
}

void printLine(const std::vector<std::string>& cells)
{
    constexpr int widths[] = {4, -18, 6, -8, -13, 6, 7, 10, 11};
    for (std::size_t column = 0; column < cells.size(); ++column) {
        std::printf(column == 0 ? "" : "  ");
        printColumn(cells[column], widths[column]);
    }
    std::printf("\n");
}

void printBill(const Plant& plant)
{
    std::vector<std::string> captions;
    for (const zu_wchar* caption : {ZU_W("Pos"), ZU_W("Component"), ZU_W("DN"), ZU_W("Class"), ZU_W("Material"),
                                    ZU_W("Sched"), ZU_W("Pieces"), ZU_W("Length m"), ZU_W("Weight kg")})
        captions.push_back(utf8(zu_MsgDBCols(caption, 0)));
    printLine(captions);
    const std::string rule(99, '-');
    std::printf("%s\n", rule.c_str());
    int number = 0;
    Position total;
    for (const auto& [key, position] : billOf(plant)) {
        const auto& [component, dn, spec, schedule] = key;
        printLine({std::to_string(++number), component, dn == 0 ? "" : std::to_string(dn), spec,
                   spec.empty() ? "" : materialOf(spec), schedule, std::to_string(position.pieces),
                   position.length == 0.0 ? "" : formatted("%.1f", position.length),
                   position.weight == 0.0 ? "" : formatted("%.1f", position.weight)});
        total.pieces += position.pieces;
        total.length += position.length;
        total.weight += position.weight;
    }
    std::printf("%s\n", rule.c_str());
    printLine({"", message("Total"), "", "", "", "", std::to_string(total.pieces), formatted("%.1f", total.length),
               formatted("%.1f", total.weight)});
}

// From where to where each line runs, in coordinates of the site.
void printEnds(const Plant& plant, const SiteSystem& site)
{
    for (std::size_t index = 0; index < plant.pipes.size(); ++index) {
        const Pipe& pipe = plant.pipes[index];
        const bool isFirst = index == 0 || plant.pipes[index - 1].line != pipe.line;
        const bool isLast = index + 1 == plant.pipes.size() || plant.pipes[index + 1].line != pipe.line;
        if (isFirst) {
            printColumn(pipe.line, -10);
            std::printf("%s", coordinates(site.place(pipe.from)).c_str());
        }
        if (isLast)
            std::printf("   to   %s\n", coordinates(site.place(pipe.to)).c_str());
    }
}

// Writes a file whose name the library gave: aside, and then moved to its place.
bool writeFile(const Wide& path, const std::string& content)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path aside = fs::temp_directory_path(error) / ("zu-demo-" + std::to_string(std::rand()) + ".svg");
    std::ofstream stream(aside, std::ios::binary);
    stream << content;
    stream.close();
    zu_wchar directory[ZU_SYS_PATH_SIZE + 1] = {};
    if (path.size() <= ZU_SYS_PATH_SIZE)
        zu_Fname_extractPath(path.c_str(), directory);
    zu_Dir_create(directory);
    const std::u8string name = aside.u8string();
    const bool isMoved =
        stream.good() && zu_File_move(wide(std::string(name.begin(), name.end())).c_str(), path.c_str()) == 0;
    if (!isMoved)
        fs::remove(aside, error);
    return isMoved;
}

std::optional<Wide> putAliases()
{
    zu_wchar directory[ZU_SYS_PATH_SIZE + 1] = {};
    zu_Sys_getCfgDir(directory);
    const zu_wchar* const installation = *directory == 0 ? nullptr : zu_Dir_getParent(directory);
    if (installation == nullptr)
        return std::nullopt;
    Wide path = installation;
    while (path.size() > 1 && path.back() == ZU_W('\\'))
        path.pop_back();
    zu_Alias_put(ZU_W("PLANT"), path.c_str());
    return path;
}

} // namespace

int runReport(const Words& words)
{
    if (!words.empty())
        zu_Env_setSes(ZU_W("UNIT"), wide(words[0]).c_str()); // before what zu.ini says
    const Wide tables = putAliases() ? setting(ZU_W("Tables")) : Wide();
    if (tables.empty())
        return notFound("no zu.ini with a group REPORT in the configuration directory; scripts/demo prepares one");

    Plant plant;
    if (!readPlant(tables, plant))
        return 1;
    if (plant.pipes.empty())
        return notFound("the plant has no pipes");
    std::vector<double> origin = numbersOf(ZU_W("Origin"));
    origin.resize(3);
    const std::vector<double> turn = numbersOf(ZU_W("Turned"));
    const double degrees = turn.empty() ? 0.0 : turn[0];
    const SiteSystem site({origin[0] * 1000, origin[1] * 1000, origin[2] * 1000}, degrees);

    const std::string title = message("Piping") + " " + utf8(zu_Env_expandStr(ZU_W("%UNIT%")));
    const std::string siteName = utf8(setting(ZU_W("Site")).c_str());
    std::printf("%s, %s\n%s\n\n", title.c_str(), siteName.c_str(), utf8(tables.c_str()).c_str());
    printBill(plant);

    constexpr std::size_t fewLines = 300; // pieces of pipe
    if (plant.pipes.size() <= fewLines) {
        std::printf("\n%s\n", message("Ends of the lines in coordinates of the site, metres").c_str());
        printEnds(plant, site);
    }

    const Sheet sheet = {
        title,
        siteName,
        {message("Origin of the plant") + ": " + coordinates(site.place({0, 0, 0})),
         message("X axis of the plant") + ": " + formatted("%.2f", degrees) + "\u00b0 " + message("from east"),
         message("Dimensions in millimetres, coordinates in metres"),
         std::to_string(plant.pipes.size()) + " " + message("pieces of pipe") + ", " +
             std::to_string(plant.fittings.size()) + " " + message("fittings") + ", " +
             std::to_string(plant.supports.size()) + " " + message("supports"),
         message("Drawn by") + " zu-demo " + zu_version()},
        site.north};
    const Wide drawing = setting(ZU_W("Drawing"));
    if (drawing.empty())
        return 0;
    if (!writeFile(drawing, drawPlant(plant, sheet)))
        return notFound("the drawing cannot be written");
    std::printf("\n%s: %s\n", message("Drawing").c_str(), utf8(zu_Fname_fullPath(drawing.c_str())).c_str());
    return 0;
}

} // namespace demo
