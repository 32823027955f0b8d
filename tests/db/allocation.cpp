#include "allocation.h"

#include <dlfcn.h>
#include <sql.h>
#include <sqlext.h>

namespace {

int failingType = 0;

} // namespace

// The library finds this one before the driver manager's, because the program comes first.
extern "C" __attribute__((visibility("default"))) SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT type, SQLHANDLE parent,
                                                                                   SQLHANDLE* handle)
{
    if (type == failingType)
        return SQL_ERROR;
    using Routine = SQLRETURN (*)(SQLSMALLINT, SQLHANDLE, SQLHANDLE*);
    static const auto next = reinterpret_cast<Routine>(dlsym(RTLD_NEXT, "SQLAllocHandle"));
    return next(type, parent, handle);
}

namespace zutest {

FailingAllocation::FailingAllocation(int type)
{
    failingType = type;
}

FailingAllocation::~FailingAllocation()
{
    failingType = 0;
}

} // namespace zutest
