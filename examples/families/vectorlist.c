/* The main directions, and which of them a vector comes closest to. */
#include "print.h"

int main(void)
{
    const Vector x = {1, 0, 0};
    const Vector y = {0, 1, 0};
    const Vector z = {0, 0, 1};
    VectorList* directions = zu_VectorList_create(&x, &y, &z, NULL);

    const Vector steep = {0.2, 0.1, 0.9};
    Vector closest;
    const int32_t index = zu_VectorList_getClosestVector(&closest, &steep, directions);
    printf("direction %d of %u: (%.0f, %.0f, %.0f)\n", index, zu_VectorList_length(directions), closest.x, closest.y,
           closest.z);
    zu_VectorList_destroy(directions);
    return 0;
}
