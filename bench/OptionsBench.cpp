// How long a user waits for the options dialog, and for a page of it.

#include "ui/options/KavMapOptions.h"

#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/log.h>

#include <cstdlib>
#include <memory>

namespace
{
class OpenOptions : public KavMapOptions
{
public:
    using KavMapOptions::KavMapOptions;
    using Options::m_book;
};

std::unique_ptr<Configuration> Defaults()
{
    setenv("HOME", "/nonexistent", 1);
    const wxLogNull silent;
    return std::make_unique<Configuration>("Kavdex");
}

void OpenTheDialog(benchmark::State& state)
{
    const auto settings = Defaults();
    for (auto _ : state)
    {
        auto* const dialog = new OpenOptions(nullptr, *settings);
        dialog->Show();
        dialog->Update();
        state.PauseTiming();
        dialog->Destroy();
        wxTheApp->Yield(true);
        state.ResumeTiming();
    }
}
BENCHMARK(OpenTheDialog)->Unit(benchmark::kMillisecond);

void TurnToAPage(benchmark::State& state)
{
    const auto settings = Defaults();
    auto* const dialog = new OpenOptions(nullptr, *settings);
    dialog->Show();
    wxTheApp->Yield(true);
    std::size_t page = 0;
    for (auto _ : state)
    {
        page = (page + 1) % dialog->m_book->GetPageCount();
        dialog->m_book->SetSelection(page);
        dialog->Update();
    }
    dialog->Destroy();
    wxTheApp->Yield(true);
}
BENCHMARK(TurnToAPage)->Unit(benchmark::kMillisecond);
} // namespace
