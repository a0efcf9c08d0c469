#pragma once

#include <tuple>

/// Base of the plain parameter records, which are equal when all their values are. A record R lists them, in
/// the order in which it declares them, in
///     auto Values() const
template <class R> struct ComparedRecord
{
    friend bool operator==(const R& a, const R& b) { return a.Values() == b.Values(); }
    friend bool operator!=(const R& a, const R& b) { return !(a == b); }
};
