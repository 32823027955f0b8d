#include "zu_Cnv.h"

#include <numbers>

double zu_Cnv_dtor(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

double zu_Cnv_rtod(double radians)
{
    return radians * 180.0 / std::numbers::pi;
}
