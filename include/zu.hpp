/** @file zu.hpp
 *  @ingroup cpp
 *  The library for C++20: the same operations with owners, ranges, standard types and results that cannot be confused.
 *
 *      #include <zu.hpp>
 *
 *      zu::ini file("D:\\plant\\pipes.ini");
 *      auto pipe = file.group("PIPE.1");                                  // a field list that releases itself
 *      pipe.set("SIZE", 114.3);
 *      for (zu::field item : pipe)
 *          std::cout << zu::to_utf8(item.name()) << '\n';
 *
 *  It consists of headers alone and does nothing by itself: every operation calls the flat one of the library, whose
 *  header (named in the comments) is exact, and any flat operation can be called on what get() gives. Of each family it
 *  has what programs use; the rest is reached that way.
 *
 *  @par Ownership
 *  Owners hold one record and release it with the destroy operation of its family. They move and do not copy; copy()
 *  and clone() do. get() lends the record, release() hands it out, reset() takes another one over, and zu::adopt marks
 *  a constructor that takes one over. An owner may hold nothing: one that was moved from, and one that a call returns
 *  whose flat result is null. Such an owner is false, and an empty range.
 *
 *  @par Ranges
 *  Owners of lists and views of them are ranges: begin(), end(), size(), empty(), front() and back(). An owner lends
 *  its list as a view() too.
 *
 *  @par Text
 *  Parameters (zu::text) take UTF-8, UTF-16 and wide text, as literals, views and strings; results are zu::wide_string
 *  or views, which zu::to_utf8 converts. Results in static buffers are copied at once.
 *
 *  @par Results
 *  bool is true for success whatever the flat call answers; a value that may be missing is std::optional; more than two
 *  outcomes are an enumeration. Those that must be looked at are [[nodiscard]].
 *
 *  @par Exceptions
 *  std::bad_alloc where memory is short and std::invalid_argument for operands that do not fit, for operations that
 *  have no result to say so. COM errors of the host (_com_error, zu_Com.h) pass through. With a compiler that takes
 *  extern "C" functions for ones that never throw unless told otherwise, tell it: /EHs.
 *
 *  @par Cursors
 *  Ranges leave the cursor of a list where it is. Operations that move it say so; they may be const all the same,
 *  because the cursor is no part of the value.
 *
 *  @par Literals and threads
 *  Literals of char are taken as UTF-8, which compilers may have to be told (/utf-8). As the library is, this interface
 *  is for one thread at a time.
 */
#ifndef ZU_HPP
#define ZU_HPP

#include "zu_cpp/fields.hpp"
#include "zu_cpp/files.hpp"
#include "zu_cpp/geometry.hpp"
#include "zu_cpp/lists.hpp"
#include "zu_cpp/owner.hpp"
#include "zu_cpp/settings.hpp"
#include "zu_cpp/tables.hpp"
#include "zu_cpp/text.hpp"
#include "zu_cpp/tree.hpp"

#endif
