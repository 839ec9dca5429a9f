// An optional value kept on the heap: for parts of a record that most records lack and that would make every
// copy of it large. Copies and compares by value.
#pragma once

#include <memory>
#include <utility>

namespace vela {

template <typename T>
class Boxed {
public:
    Boxed() = default;
    Boxed(T value) : value_(std::make_unique<T>(std::move(value))) {}
    Boxed(const Boxed& other) : value_(other.value_ ? std::make_unique<T>(*other.value_) : nullptr) {}
    Boxed(Boxed&&) noexcept = default;
    Boxed& operator=(const Boxed& other)
    {
        if (this != &other)
            value_ = other.value_ ? std::make_unique<T>(*other.value_) : nullptr;
        return *this;
    }
    Boxed& operator=(Boxed&&) noexcept = default;
    ~Boxed() = default;

    explicit operator bool() const noexcept { return value_ != nullptr; }
    const T& operator*() const noexcept { return *value_; }
    const T* operator->() const noexcept { return value_.get(); }

    // The value for writing; default-constructed when there was none.
    T& ensure()
    {
        if (!value_)
            value_ = std::make_unique<T>();
        return *value_;
    }
    void reset() noexcept { value_.reset(); }

    friend bool operator==(const Boxed& left, const Boxed& right)
    {
        return left.value_ && right.value_ ? *left.value_ == *right.value_ : !left.value_ == !right.value_;
    }

private:
    std::unique_ptr<T> value_;
};

} // namespace vela
