// What a step that can fail gives: its value, or the error in its place.
#pragma once

#include <concepts>
#include <utility>
#include <variant>

namespace vela {

// The value of a step whose success is all there is to know.
struct Done {};

// `return Failure{error};` fails with whatever the outcome's error can be made of.
template <typename Error>
struct Failure {
    Error error;
};
template <typename Error>
Failure(Error) -> Failure<Error>;

template <typename Value, typename Error>
class [[nodiscard]] Outcome {
public:
    template <std::convertible_to<Value> Given = Value>
    Outcome(Given value) : state_(std::in_place_index<0>, std::move(value))
    {
    }
    template <std::convertible_to<Error> Given>
    Outcome(Failure<Given> failure) : state_(std::in_place_index<1>, std::move(failure.error))
    {
    }

    // Whether there is a value. Only then may it be asked for, and the error only otherwise.
    explicit operator bool() const noexcept { return state_.index() == 0; }
    Value& value() noexcept { return *std::get_if<0>(&state_); }
    const Value& value() const noexcept { return *std::get_if<0>(&state_); }
    const Error& error() const noexcept { return *std::get_if<1>(&state_); }

private:
    std::variant<Value, Error> state_;
};

} // namespace vela
