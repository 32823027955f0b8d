// The tables of a plant, read through the library: what the report counts and the drawing shows. Places are in
// millimetres of the plant's own system.
#pragma once

#include "text.h"

#include <string>
#include <vector>

namespace demo {

struct Pipe
{
    std::string line, tag, service, spec, schedule;
    int dn = 0;
    double diameter = 0.0, wall = 0.0; // mm, outside
    Point from = {}, to = {};
    double length = 0.0; // mm
};

struct Fitting
{
    std::string line, kind, spec;
    int dn = 0;
    Point at = {};
    char axis = 'X';     // of the pipe that it sits in
    double weight = 0.0; // kg
};

struct Support
{
    std::string line, kind;
    Point at = {};
};

struct Equipment
{
    std::string tag, kind;
    Point low = {}, high = {}; // opposite corners
};

struct Plant
{
    std::vector<Pipe> pipes; // each line's together, along its route
    std::vector<Fitting> fittings;
    std::vector<Support> supports;
    std::vector<Equipment> equipment;
};

// Reads the four tables of a directory; tells what is the matter when one cannot be read. A long reading shows its
// progress on standard error.
bool readPlant(const Wide& directory, Plant& plant);

} // namespace demo
