/* Where a line of sight meets a floor. */
#include "print.h"

int main(void)
{
    const Point eye = {0, 0, 10};
    const Vector down = {1, 0, -2};
    const Point onFloor = {0, 0, 4};
    const Vector normal = {0, 0, 1};
    Ray* ray = zu_Ray_create(&eye, &down);
    Plane* floor = zu_Plane_create(&onFloor, &normal);

    Point hit;
    if (zu_Plane_intersectionWithRay(&hit, floor, ray) == 1)
        printf("(%.1f, %.1f, %.1f)\n", hit.x, hit.y, hit.z);

    zu_Plane_destroy(floor);
    zu_Ray_destroy(ray);
    return 0;
}
