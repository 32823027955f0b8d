// Stands in front of the driver manager where it allocates handles.
#pragma once

namespace zutest {

// While it lives, allocating a handle of this type (1 environment, 2 connection, 3 statement) fails.
class FailingAllocation
{
public:
    explicit FailingAllocation(int type);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

} // namespace zutest
