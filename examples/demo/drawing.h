// The drawing of a plant: plan and isometric view on one sheet, as SVG.
#pragma once

#include "plant.h"

namespace demo {

struct Sheet
{
    std::string title;
    std::string subtitle;
    std::vector<std::string> notes;
    Vector north = {}; // true north in the plant's own system
};

// Text in the drawing. Lines are tagged where the scale leaves room for it.
std::string drawPlant(const Plant& plant, const Sheet& sheet);

} // namespace demo
