/* What was drawn in one system, placed in another: moved, and turned by a quarter. */
#include "print.h"

int main(void)
{
    const Point o1 = {0, 0, 0}, x1 = {1, 0, 0}, y1 = {0, 1, 0};
    const Point o2 = {100, 0, 0}, x2 = {100, 1, 0}, y2 = {99, 0, 0};
    const Point drawn = {5, 0, 0};
    Point placed;
    TMatrix* move = zu_TMatrix_create();

    if (zu_TMatrix_createFromUCS(move, &o1, &x1, &y1, &o2, &x2, &y2) == 1) {
        zu_TMatrix_xform(&placed, move, &drawn);
        zu_Point_setToTolerance(&placed);
        printf("(%.1f, %.1f, %.1f)\n", placed.x, placed.y, placed.z);
    }
    zu_TMatrix_destroy(move);
    return 0;
}
