#include "zu_Ntuple.h"

#include "frame/console.h"
#include "frame/trace.h"
#include "geometry/numbers.h"
#include "zu_Memory.h"

#include <algorithm>
#include <cstddef>

static_assert(offsetof(Ntuple, count) == 0 && offsetof(Ntuple, elements) == 8);

namespace {

using namespace zu;

// Elements that can be read: none where there was no memory for them.
int32_t countOf(const Ntuple* ntuple)
{
    return ntuple == nullptr || ntuple->elements == nullptr ? 0 : ntuple->count;
}

bool hasElement(const Ntuple* ntuple, int32_t index)
{
    return index >= 0 && index < countOf(ntuple);
}

bool isReadable(const Ntuple* ntuple)
{
    return ntuple != nullptr && countOf(ntuple) == ntuple->count;
}

bool haveSameCount(const Ntuple* a, const Ntuple* b)
{
    return isReadable(a) && isReadable(b) && a->count == b->count;
}

} // namespace

Ntuple* zu_Ntuple_create(int32_t count)
{
    ZU_TRACE(ntuple);
    if (count < 0)
        return nullptr;
    auto* const ntuple = static_cast<Ntuple*>(zu_Malloc(sizeof(Ntuple)));
    if (ntuple == nullptr)
        return nullptr;
    // A header without elements is a result too: its elements can be neither read nor stored.
    *ntuple = {count, nullptr};
    if (count > 0)
        ntuple->elements = static_cast<double*>(zu_Calloc(static_cast<uint64_t>(count), sizeof(double)));
    return ntuple;
}

int32_t zu_Ntuple_destroy(Ntuple* ntuple)
{
    ZU_TRACE(ntuple);
    if (ntuple == nullptr)
        return 0;
    zu_Free(ntuple->elements);
    zu_Free(ntuple);
    return 1;
}

int32_t zu_Ntuple_setElement(Ntuple* ntuple, int32_t index, double value)
{
    ZU_TRACE(ntuple);
    if (!hasElement(ntuple, index))
        return 0;
    ntuple->elements[index] = value;
    return 1;
}

int32_t zu_Ntuple_getElement(double* out, const Ntuple* ntuple, int32_t index)
{
    ZU_TRACE(ntuple);
    if (out == nullptr || !hasElement(ntuple, index))
        return 0;
    *out = ntuple->elements[index];
    return 1;
}

Ntuple* zu_Ntuple_fromVector(const Vector* vector)
{
    ZU_TRACE(ntuple);
    Ntuple* const ntuple = vector == nullptr ? nullptr : zu_Ntuple_create(3);
    if (ntuple == nullptr)
        return nullptr;
    if (zu_Ntuple_setElement(ntuple, 0, vector->x) == 0 || zu_Ntuple_setElement(ntuple, 1, vector->y) == 0 ||
        zu_Ntuple_setElement(ntuple, 2, vector->z) == 0) {
        zu_Ntuple_destroy(ntuple);
        return nullptr;
    }
    return ntuple;
}

int32_t zu_Ntuple_print(const Ntuple* ntuple, FILE* stream)
{
    if (ntuple == nullptr)
        return 0;
    std::FILE* const target = stream == nullptr ? stdout : stream;
    for (int32_t index = 0; index < ntuple->count; ++index) {
        const bool isLast = index + 1 == ntuple->count;
        if (hasElement(ntuple, index))
            geometry::writeNumber(target, isLast ? ZU_W("%-lf") : ZU_W("%-lf, "), ntuple->elements[index]);
        else
            writeText(target, isLast ? ZU_W("  ") : ZU_W(" , "));
    }
    return geometry::writeLineEnd(target);
}

int32_t zu_Ntuple_scale(Ntuple* ntuple, double factor)
{
    ZU_TRACE(ntuple);
    if (!isReadable(ntuple))
        return 0;
    std::for_each_n(ntuple->elements, ntuple->count, [factor](double& element) { element *= factor; });
    return 1;
}

int32_t zu_Ntuple_dotProduct(double* out, const Ntuple* a, const Ntuple* b)
{
    ZU_TRACE(ntuple);
    if (out == nullptr || !haveSameCount(a, b))
        return 0;
    double sum = 0.0;
    for (int32_t index = 0; index < a->count; ++index)
        sum += a->elements[index] * b->elements[index];
    *out = sum;
    return 1;
}

int32_t zu_Ntuple_copy(Ntuple* out, const Ntuple* ntuple)
{
    ZU_TRACE(ntuple);
    if (!haveSameCount(out, ntuple))
        return 0;
    std::copy_n(ntuple->elements, ntuple->count, out->elements);
    return 1;
}

int32_t zu_Ntuple_add(Ntuple* out, const Ntuple* a, const Ntuple* b)
{
    if (!haveSameCount(out, a) || !haveSameCount(out, b))
        return 0;
    for (int32_t index = 0; index < out->count; ++index)
        out->elements[index] = a->elements[index] + b->elements[index];
    return 1;
}

int32_t zu_Ntuple_subtract(Ntuple* out, const Ntuple* a, const Ntuple* b)
{
    if (!haveSameCount(out, a) || !haveSameCount(out, b))
        return 0;
    // The first minus the second, unlike points and vectors.
    for (int32_t index = 0; index < out->count; ++index)
        out->elements[index] = a->elements[index] - b->elements[index];
    return 1;
}
