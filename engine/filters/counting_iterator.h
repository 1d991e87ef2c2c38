#pragma once

#include "engine/filters/search_budget.h"

#include <compare>
#include <cstddef>
#include <iterator>

/// Steps through a text on a budget that all its copies share, and so ends an algorithm that would look at the same
/// characters again and again. Both text and budget must outlive it.
class CountingIterator
{
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = wchar_t;
    using difference_type = std::ptrdiff_t;
    using pointer = const wchar_t*;
    using reference = const wchar_t&;

    CountingIterator() = default;

    CountingIterator(const wchar_t* at, SearchBudget& budget) : at_(at), budget_(&budget) {}

    reference operator*() const
    {
        spend();
        return *at_;
    }

    reference operator[](difference_type n) const
    {
        spend();
        return at_[n];
    }

    CountingIterator& operator++()
    {
        ++at_;
        return *this;
    }

    CountingIterator operator++(int)
    {
        const CountingIterator before = *this;
        ++*this;
        return before;
    }

    CountingIterator& operator--()
    {
        --at_;
        return *this;
    }

    CountingIterator operator--(int)
    {
        const CountingIterator before = *this;
        --at_;
        return before;
    }

    CountingIterator& operator+=(difference_type n)
    {
        at_ += n;
        return *this;
    }

    CountingIterator& operator-=(difference_type n)
    {
        at_ -= n;
        return *this;
    }

    friend CountingIterator operator+(CountingIterator at, difference_type n) { return at += n; }

    friend CountingIterator operator-(CountingIterator at, difference_type n) { return at -= n; }

    friend difference_type operator-(const CountingIterator& a, const CountingIterator& b) { return a.at_ - b.at_; }

    /// Counts as well, since loops at the end of a text do nothing else.
    friend bool operator==(const CountingIterator& a, const CountingIterator& b)
    {
        a.spend();
        return a.at_ == b.at_;
    }

    friend std::strong_ordering operator<=>(const CountingIterator& a, const CountingIterator& b)
    {
        return a.at_ <=> b.at_;
    }

private:
    void spend() const
    {
        // One that stands nowhere has no budget.
        if (budget_)
            budget_->spend();
    }

    const wchar_t* at_ = nullptr;
    SearchBudget* budget_ = nullptr;
};
