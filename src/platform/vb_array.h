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
#include <cstring>
#include <iterator>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

namespace vb {

// Gives vectors their memory already zeroed by calloc: a fresh picture of megabytes costs
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

// The elements of an array in memory zeroed by calloc, made and dropped without a pass
// over the elements: a fresh grid of megabytes costs nothing until it is touched (and in
// an instrumented build a loop over every cell of a hostile header's grid is most of the
// time). The elements are plain data whose default is all zero bytes, as every number
// and every record of the editor is; a type whose default isn't gets it written in.
template <class T> class ZeroedBuffer {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

public:
    ZeroedBuffer() = default;
    explicit ZeroedBuffer(std::size_t count) : data_(allocate(count, true)), size_(count) {
        if (!zeroIsDefault())
            for (std::size_t k = 0; k < count; ++k)
                ::new (static_cast<void*>(data_ + k)) T();
    }
    ZeroedBuffer(const ZeroedBuffer& other)
        : data_(allocate(other.size_, false)), size_(other.size_) {
        if (size_ > 0) std::memcpy(static_cast<void*>(data_), other.data_, size_ * sizeof(T));
    }
    ZeroedBuffer(ZeroedBuffer&& other) noexcept
        : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}
    ZeroedBuffer& operator=(ZeroedBuffer other) noexcept {
        swap(other);
        return *this;
    }
    ~ZeroedBuffer() { std::free(data_); }

    void swap(ZeroedBuffer& other) noexcept {
        std::swap(data_, other.data_);
        std::swap(size_, other.size_);
    }
    // Every element back to its default.
    void clear() {
        if (zeroIsDefault()) {
            if (size_ > 0) std::memset(static_cast<void*>(data_), 0, size_ * sizeof(T));
        } else {
            std::fill(data_, data_ + size_, T{});
        }
    }

    T* data() { return data_; }
    const T* data() const { return data_; }
    std::size_t size() const { return size_; }
    T& operator[](std::size_t k) { return data_[k]; }
    const T& operator[](std::size_t k) const { return data_[k]; }

private:
    static T* allocate(std::size_t count, bool zeroed) {
        if (count == 0) return nullptr;
        void* p = zeroed ? std::calloc(count, sizeof(T)) : std::malloc(count * sizeof(T));
        if (!p) throw std::bad_alloc();
        return static_cast<T*>(p);
    }
    static bool zeroIsDefault() {
        if constexpr (std::is_arithmetic_v<T>) {
            return true;
        } else {
            static const bool zero = [] {
                const T value{};
                unsigned char bytes[sizeof(T)];
                std::memcpy(bytes, &value, sizeof(T));
                return std::all_of(std::begin(bytes), std::end(bytes),
                                   [](unsigned char b) { return b == 0; });
            }();
            return zero;
        }
    }

    T* data_ = nullptr;
    std::size_t size_ = 0;
};

template <class T> class Array {
public:
    Array() = default;
    Array(int64_t lower, int64_t upper) { ReDim(lower, upper); }

    // Allocates anew with every element default (0), dropping what was held.
    void ReDim(int64_t lower, int64_t upper) {
        if (upper < lower) raise(SubscriptOutOfRange);
        auto count = static_cast<std::size_t>(upper - lower + 1);
        if (allocated_ && count == data_.size()) {
            data_.clear(); // memory already mapped costs less
        } else {
            Reservation memory(count, sizeof(T)); // a failure keeps what was held
            ZeroedBuffer<T>(count).swap(data_);
            memory_ = std::move(memory);
        }
        lower_ = lower;
        upper_ = upper;
        allocated_ = true;
    }

    void Erase() {
        ZeroedBuffer<T>().swap(data_);
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
    ZeroedBuffer<T> data_;
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
        ZeroedBuffer<T>(count).swap(data_); // 13.5 MB for Work_Buf: untouched pages cost nothing
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
    ZeroedBuffer<T> data_;
};

} // namespace vb
