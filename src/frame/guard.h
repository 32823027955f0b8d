// The boundary between C++ and the flat interface.
#pragma once

#include <new>
#include <stdexcept>
#include <utility>

namespace zu {

// Runs the body of an exported operation; out of memory becomes the operation's failure value. COM errors, and the
// exception of the message database, pass through: they are part of the interface.
template <class Result, class Body>
Result guarded(Result failure, Body&& body)
{
    try {
        return std::forward<Body>(body)();
    } catch (const std::bad_alloc&) {
        return failure;
    } catch (const std::length_error&) {
        return failure;
    }
}

// The same for an operation without a result.
template <class Body>
void guarded(Body&& body)
{
    try {
        std::forward<Body>(body)();
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
}

} // namespace zu
