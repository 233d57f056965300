#pragma once
// Arrays with explicit bounds whose every access is checked, as the runtime checked
// them: an index outside the bounds, or any access to an array that isn't allocated,
// raises "Subscript out of range". A floating index is rounded first (half to even).
#include "platform/vb_error.h"
#include "platform/vb_memory.h"
#include "platform/vb_numeric.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

namespace vb {

// Gives arrays their memory already zeroed by calloc: a fresh grid of megabytes costs
// nothing until it is touched, instead of a pass writing zeros over it. A number is
// "constructed" by leaving calloc's zero, so such a vector is made at its size once and
// never grown into memory it used before.
template <class T> struct ZeroedAllocator {
    using value_type = T;
    ZeroedAllocator() = default;
    template <class U> ZeroedAllocator(const ZeroedAllocator<U>&) {}
    T* allocate(std::size_t n) {
        if (void* p = std::calloc(n, sizeof(T))) return static_cast<T*>(p);
        throw std::bad_alloc();
    }
    void deallocate(T* p, std::size_t) { std::free(p); }
    // A number's default is the zero calloc already wrote.
    template <class U> void construct(U* p) {
        if constexpr (!std::is_arithmetic_v<U>) ::new (static_cast<void*>(p)) U();
    }
    template <class U, class... A> void construct(U* p, A&&... args) {
        ::new (static_cast<void*>(p)) U(std::forward<A>(args)...);
    }
    template <class U> bool operator==(const ZeroedAllocator<U>&) const { return true; }
};

template <class T> using ZeroedVector = std::vector<T, ZeroedAllocator<T>>;

template <class T> class Array {
public:
    Array() = default;
    Array(int64_t lower, int64_t upper) { ReDim(lower, upper); }

    // Allocates anew with every element default (0), dropping what was held.
    void ReDim(int64_t lower, int64_t upper) {
        if (upper < lower) raise(SubscriptOutOfRange);
        auto count = static_cast<std::size_t>(upper - lower + 1);
        if (allocated_ && count == data_.size()) {
            std::fill(data_.begin(), data_.end(), T{}); // memory already mapped costs less
        } else {
            Reservation memory(count, sizeof(T)); // a failure keeps what was held
            ZeroedVector<T>(count).swap(data_);
            memory_ = std::move(memory);
        }
        lower_ = lower;
        upper_ = upper;
        allocated_ = true;
    }

    void Erase() {
        ZeroedVector<T>().swap(data_);
        memory_ = Reservation();
        allocated_ = false;
        lower_ = 0;
        upper_ = -1;
    }

    bool allocated() const { return allocated_; }
    int64_t LBound() const {
        if (!allocated_) raise(SubscriptOutOfRange);
        return lower_;
    }
    int64_t UBound() const {
        if (!allocated_) raise(SubscriptOutOfRange);
        return upper_;
    }

    template <class I> T& operator()(I i) { return data_[offset(i)]; }
    template <class I> const T& operator()(I i) const { return data_[offset(i)]; }

    // Bulk access for whole-array copies and file output; empty while unallocated.
    T* data() { return data_.data(); }
    const T* data() const { return data_.data(); }
    std::size_t size() const { return data_.size(); }

private:
    template <class I> std::size_t offset(I i) const {
        int64_t index;
        if constexpr (std::is_integral_v<I>)
            index = static_cast<int64_t>(i);
        else
            index = CLng(static_cast<double>(i)); // a float or a dynamic number
        if (!allocated_ || index < lower_ || index > upper_) raise(SubscriptOutOfRange);
        return static_cast<std::size_t>(index - lower_);
    }

    Reservation memory_; // before data_, so a copy is counted before it is made
    ZeroedVector<T> data_;
    int64_t lower_ = 0;
    int64_t upper_ = -1;
    bool allocated_ = false;
};

// A fixed three-dimensional array, allocated once with bounds 0..n-1 on each axis.
template <class T> class Array3 {
public:
    Array3(int64_t n0, int64_t n1, int64_t n2) : n0_(n0), n1_(n1), n2_(n2) {
        auto count = static_cast<std::size_t>(n0 * n1 * n2);
        memory_ = Reservation(count, sizeof(T));
        ZeroedVector<T>(count).swap(data_); // 13.5 MB for Work_Buf: untouched pages cost nothing
    }

    template <class I, class J, class K> T& operator()(I i, J j, K k) {
        return data_[offset(index(i), index(j), index(k))];
    }
    template <class I, class J, class K> const T& operator()(I i, J j, K k) const {
        return data_[offset(index(i), index(j), index(k))];
    }
    int64_t UBound(int dimension) const {
        return (dimension == 1 ? n0_ : dimension == 2 ? n1_ : n2_) - 1;
    }
    // Bulk access for the loops that check their bounds once a row: element (i, j, k)
    // stands at (i * n1 + j) * n2 + k.
    T* data() { return data_.data(); }
    const T* data() const { return data_.data(); }

private:
    template <class I> static int64_t index(I i) {
        if constexpr (std::is_integral_v<I>)
            return static_cast<int64_t>(i);
        else
            return CLng(static_cast<double>(i));
    }
    std::size_t offset(int64_t i, int64_t j, int64_t k) const {
        if (i < 0 || i >= n0_ || j < 0 || j >= n1_ || k < 0 || k >= n2_) raise(SubscriptOutOfRange);
        return static_cast<std::size_t>((i * n1_ + j) * n2_ + k);
    }

    int64_t n0_, n1_, n2_;
    Reservation memory_;
    ZeroedVector<T> data_;
};

} // namespace vb
