/* Help where the product's help library is installed. Here it is not: the user is told, and the result is 0. */
#include "print.h"

int main(void)
{
    if (zu_Help_Initialize() == 0)
        printf("no help\n");
    return 0;
}
