/* The shortest turn from one direction to another, and that turn twice. */
#include "print.h"

int main(void)
{
    const Vector from = {1, 0, 0};
    const Vector to = {1, 1, 0};
    Vector direction = from;
    Quaternion turn, twice;
    RotMatrix* matrix = zu_RotMatrix_create();

    if (zu_Quaternion_fromVectors(&turn, &from, &to) == 1) {
        zu_Quaternion_multiply(&twice, &turn, &turn);
        zu_RotMatrix_fromQuaternion(matrix, &twice);
        zu_RotMatrix_rotateVector(&direction, matrix);
        zu_Point_setToTolerance((Point*)&direction); /* a vector is laid out as a point */
        printf("(%.1f, %.1f, %.1f)\n", direction.x, direction.y, direction.z);
    }
    zu_RotMatrix_destroy(matrix);
    return 0;
}
