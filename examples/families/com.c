/* A counted text, and values that own what they hold. */
#include "print.h"

int main(void)
{
    VARIANT value, copy;
    VariantInit(&value);
    VariantInit(&copy);
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocString(ZU_W("P-101"));

    if (SUCCEEDED(VariantCopy(&copy, &value)))
        printf("%s, %u units\n", utf8(copy.bstrVal), (unsigned int)SysStringLen(copy.bstrVal));

    VariantClear(&copy);
    VariantClear(&value); /* releases the text */
    return 0;
}
