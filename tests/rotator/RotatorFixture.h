#pragma once

#include "rotator/Rotator.h"
#include "tests/support/Rotctld.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

/// A rotator, and a clock that goes only when a test wants it.
class RotatorFixture : public testing::Test
{
protected:
    using Rotator = rotator::Rotator;

    void Use(const std::string& address)
    {
        antenna.emplace(*rotator::ParseAddress(address));
        antenna->onNews = [this](const Rotator::News& said)
        {
            news.push_back(said.text);
            hasFailed = said.hasFailed;
        };
    }

    /// Steps at one moment until something has become true, half a minute at most.
    template <class Condition>
    bool Await(Condition condition)
    {
        for (int i = 0; i < 6000; ++i, std::this_thread::sleep_for(std::chrono::milliseconds(5)))
        {
            antenna->Step(now);
            if (condition())
                return true;
        }
        return false;
    }
    bool AwaitNews(std::size_t count)
    {
        return Await([&] { return news.size() >= count; });
    }
    bool AwaitBearing()
    {
        return Await([this] { return antenna->Bearing().has_value(); });
    }

    /// The same while time passes: a tenth of a second a step.
    template <class Condition>
    bool AwaitInTime(Condition condition)
    {
        return Await(
            [&]
            {
                now += std::chrono::milliseconds(100);
                return condition();
            });
    }

    /// Steps often enough that everything that can happen has happened.
    void StepOften()
    {
        for (int i = 0; i < 20; ++i, std::this_thread::sleep_for(std::chrono::milliseconds(5)))
            antenna->Step(now);
    }

    Rotator::Clock::time_point now{std::chrono::hours(1)};
    std::optional<Rotator> antenna;
    std::vector<std::string> news;
    bool hasFailed = false;
};
