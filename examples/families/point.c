/* A point dropped onto a line, where two lines meet, and a point from text. */
#include "print.h"

int main(void)
{
    Point a, b, p, foot;
    zu_Point_set(&a, 0, 0, 0);
    zu_Point_set(&b, 10, 0, 0);
    zu_Point_set(&p, 4, 3, 0);
    if (zu_Point_projectOntoLine(&foot, &p, &a, &b) == 1 && zu_Point_between(&foot, &a, &b, 1) == 1) {
        double distance = 0;
        zu_Point_distance(&distance, &foot, &p);
        printf("foot (%.1f, %.1f, %.1f), %.1f away\n", foot.x, foot.y, foot.z, distance);
    }

    Point q, meeting;
    if (zu_Point_fromDelimitedString(&q, ZU_W("4; -2"), ZU_W(";")) == 1 &&
        zu_Point_intersectPoint(&meeting, &a, &b, &p, &q) == 1)
        printf("the lines meet at x = %.1f\n", meeting.x);
    return 0;
}
