/* A path of labelled points, found again by its number. */
#include "print.h"

int main(void)
{
    const Point start = {0, 0, 0};
    const Point end = {10, 0, 0};
    PointTravelList* path = zu_PointTravelList_create();
    zu_PointTravelList_insEnd(path, zu_PointTravelNode_create(&start, ZU_W("start"), NULL, 1));
    zu_PointTravelList_insEnd(path, zu_PointTravelNode_create(&end, ZU_W("end"), NULL, 2));
    const int32_t number = zu_PointTravelList_add(path);

    path = zu_PointTravelList_get(number);
    for (zu_PointTravelList_start(path); !zu_PointTravelList_eol(path); zu_PointTravelList_next(path)) {
        const PointTravelNode* node = zu_PointTravelList_getCurr(path);
        printf("%s at x = %.1f\n", utf8(node->label), node->point.x);
    }
    zu_PointTravelList_destroy(path);
    return 0;
}
