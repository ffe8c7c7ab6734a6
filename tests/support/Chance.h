#pragma once

#include <iterator>
#include <random>

/// Random choices that come again with their seed.
class Chance
{
public:
    explicit Chance(unsigned seed) : m_engine(seed) {}

    /// 0 .. count - 1.
    int Below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }
    int Between(int first, int last) { return first + Below(last - first + 1); }
    bool OneIn(int count) { return Below(count) == 0; }

    template <class List>
    const auto& Of(const List& list)
    {
        return *std::next(std::begin(list), Below(static_cast<int>(std::size(list))));
    }

private:
    std::mt19937 m_engine;
};
