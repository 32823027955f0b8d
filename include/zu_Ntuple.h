/** @file zu_Ntuple.h
 *  @ingroup geometry
 *  N-tuples: counted arrays of numbers. The columns of a matrix (zu_Matrix.h) are n-tuples.
 *
 *      Ntuple* weights = zu_Ntuple_create(4);
 *      zu_Ntuple_setElement(weights, 0, 0.5);
 *      zu_Ntuple_destroy(weights);
 *
 *  Indices are zero-based. Unless a comment says otherwise: outputs come first and may be one of the inputs; the result
 *  is 1 for success and 0 for failure; a null argument, an index below 0 and an index that is not below the count give
 *  0; after a failure the outputs are as they were.
 *
 *  @par Example
 *  @include ntuple.c
 */
#ifndef ZU_NTUPLE_H
#define ZU_NTUPLE_H

#include "zu_Vector.h"

#include <stdio.h>

ZU_EXTERN_C_BEGIN

/** An n-tuple; read it freely, and write its elements. */
struct Ntuple
{
    int32_t count;    /**< number of elements */
    double* elements; /**< null when there was no memory for them: nothing can be read or stored then */
};

/** Makes an n-tuple of zeros.
 *  @return a new n-tuple, released with zu_Ntuple_destroy; null for a count below 0 and without memory. When the memory
 *          suffices for the header alone, the header is given, without elements. */
ZU_API Ntuple* zu_Ntuple_create(int32_t count);

/** Destroys an n-tuple; null is ignored. (The columns of a matrix go with the matrix.)
 *  @return 1, or 0 for null. */
ZU_API int32_t zu_Ntuple_destroy(Ntuple* ntuple);

/** Stores an element. */
ZU_API int32_t zu_Ntuple_setElement(Ntuple* ntuple, int32_t index, double value);

/** Reads an element. */
ZU_API int32_t zu_Ntuple_getElement(double* out, const Ntuple* ntuple, int32_t index);

/** Makes an n-tuple of the three components of a vector.
 *  @return a new n-tuple, released with zu_Ntuple_destroy; null for null and without memory. */
ZU_API Ntuple* zu_Ntuple_fromVector(const Vector* vector);

/** Writes an n-tuple as one line, "1.000000, 2.000000". An element that cannot be read leaves its place blank.
 *  @param stream  null means standard output.
 *  @return the number of characters that the last write gave, which is 1 for the line end; 0 for a null n-tuple. */
ZU_API int32_t zu_Ntuple_print(const Ntuple* ntuple, FILE* stream);

/** Multiplies every element by a factor, in place. */
ZU_API int32_t zu_Ntuple_scale(Ntuple* ntuple, double factor);

/** The dot product, summed in index order. @return 1; 0 when the counts differ. */
ZU_API int32_t zu_Ntuple_dotProduct(double* out, const Ntuple* a, const Ntuple* b);

/** Copies the elements. @return 1; 0 when the counts differ. */
ZU_API int32_t zu_Ntuple_copy(Ntuple* out, const Ntuple* ntuple);

/** out = a + b. @return 1; 0 when one of the counts differs. */
ZU_API int32_t zu_Ntuple_add(Ntuple* out, const Ntuple* a, const Ntuple* b);

/** out = a - b, the first operand minus the second. (Points and vectors subtract the other way round.)
 *  @return 1; 0 when one of the counts differs. */
ZU_API int32_t zu_Ntuple_subtract(Ntuple* out, const Ntuple* a, const Ntuple* b);

ZU_EXTERN_C_END

#endif
