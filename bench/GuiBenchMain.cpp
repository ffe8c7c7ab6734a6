#include <benchmark/benchmark.h>

#include <wx/app.h>
#include <wx/image.h>

#include <clocale>

namespace
{
/// Runs the benchmarks inside an application with a display, under the program's own locale.
class BenchApp : public wxApp
{
public:
    bool OnInit() override
    {
        std::setlocale(LC_ALL, "C");
        wxInitAllImageHandlers();
        return true;
    }

    int OnRun() override
    {
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    }
};
} // namespace

wxIMPLEMENT_APP_NO_MAIN(BenchApp);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    return wxEntry(argc, argv);
}
