/* The direction of a pipe, the one across it, and the angle between two pipes. */
#include "print.h"

int main(void)
{
    const Point from = {0, 0, 0};
    const Point to = {3, 4, 0};
    const Vector up = {0, 0, 1};
    const Vector other = {0, 2, 0};
    Vector along, across;
    double angle = 0;

    zu_Vector_computeNormal(&along, &from, &to);
    zu_Vector_crossProduct(&across, &along, &up);
    printf("along (%.1f, %.1f, %.1f), across (%.1f, %.1f, %.1f)\n", along.x, along.y, along.z, across.x, across.y,
           across.z);
    if (zu_Vector_angle(&angle, &along, &other) == 1)
        printf("%.2f degrees\n", zu_Cnv_rtod(angle));
    printf("horizontal: %d\n", zu_Vector_isHorizontal(&along));
    return 0;
}
