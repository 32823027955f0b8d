/* A quarter turn about the vertical axis. */
#include "print.h"

int main(void)
{
    const Vector up = {0, 0, 1};
    Point point = {10, 0, 2};
    RotMatrix* turn = zu_RotMatrix_create();

    if (zu_RotMatrix_fromRotAxisAndAngle(turn, &up, zu_Cnv_dtor(90)) == 1) {
        zu_RotMatrix_rotatePoint(&point, turn);
        zu_Point_setToTolerance(&point);
        printf("(%.1f, %.1f, %.1f)\n", point.x, point.y, point.z);
    }
    zu_RotMatrix_destroy(turn);
    return 0;
}
