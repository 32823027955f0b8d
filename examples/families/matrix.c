/* A product of matrices of 2 x 3 and 3 x 2. */
#include "print.h"

int main(void)
{
    Matrix* a = zu_Matrix_create(2, 3);
    Matrix* b = zu_Matrix_create(3, 2);
    Matrix* product = zu_Matrix_create(2, 2);
    zu_Matrix_setElement(a, 1, 2, 7.5); /* row 1, column 2 */
    zu_Matrix_setElement(b, 2, 0, 2);

    if (zu_Matrix_multiply(product, a, b) == 1)
        zu_Matrix_print(product, NULL);

    zu_Matrix_destroy(product);
    zu_Matrix_destroy(b);
    zu_Matrix_destroy(a);
    return 0;
}
