/* A route of points, and which of them lies nearest. */
#include "print.h"

int main(void)
{
    const Point a = {0, 0, 0};
    const Point b = {10, 0, 0};
    const Point c = {10, 5, 0};
    PointList* route = zu_PointList_create(&a, &b, NULL);
    zu_PointList_insEnd(route, &c);

    for (zu_PointList_start(route); !zu_PointList_eol(route); zu_PointList_next(route)) {
        const Point* point = zu_PointList_getCurr(route);
        printf("(%.1f, %.1f, %.1f)\n", point->x, point->y, point->z);
    }

    const Point here = {9, 4, 0};
    Point nearest;
    printf("nearest: %d\n", zu_PointList_getClosestPoint(&nearest, &here, route));
    zu_PointList_destroy(route);
    return 0;
}
