#pragma once

#include "dialog/work/Fault.h"

#include <optional>
#include <type_traits>
#include <utility>
#include <variant>

/// What an operation that may fail came to: a value, or a fault. All of the dialog's failures have
/// this shape. Result<> is for operations that have nothing to give but whether they succeeded.
template <typename Value = std::monostate> class [[nodiscard]] Result
{
public:
    /// A success.
    Result(Value value = {}) : m_either(std::in_place_index<0>, std::move(value)) {}

    Result(Fault fault) : m_either(std::in_place_index<1>, std::move(fault)) {}

    bool isGood() const { return m_either.index() == 0; }
    explicit operator bool() const { return isGood(); }

    /// Of a success alone.
    Value &operator*() & { return std::get<0>(m_either); }
    const Value &operator*() const & { return std::get<0>(m_either); }
    Value &&operator*() && { return std::get<0>(std::move(m_either)); }
    Value *operator->() { return &std::get<0>(m_either); }
    const Value *operator->() const { return &std::get<0>(m_either); }

    /// Of a failure alone.
    const Fault &fault() const { return std::get<1>(m_either); }

    /// What is told of it; null of a success.
    QString sentence() const { return isGood() ? QString() : fault().sentence; }

    /// The fault's kind; none of a success.
    std::optional<FaultKind> faultKind() const
    {
        return isGood() ? std::nullopt : std::optional(fault().kind);
    }

    /// What the next operation comes to, which is done after a success alone; else the fault.
    template <typename Next> std::invoke_result_t<Next> andThen(const Next &next) const
    {
        if (!isGood())
            return fault();
        return next();
    }

private:
    std::variant<Value, Fault> m_either;
};
