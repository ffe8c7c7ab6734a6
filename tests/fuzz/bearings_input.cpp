#include "FuzzedBytes.h"

#include "config/Settings.h"
#include "reports/PrintBearings.h"

#include <memory>

namespace
{
using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

constexpr UtcTime kTime{2026, 2, 20, 12, 30, 0};

int Answer(std::string_view bytes, std::FILE* nowhere)
{
    static const Settings settings = DefaultSettings();
    const File in(bytes.empty() ? std::fopen("/dev/null", "r")
                                : fmemopen(const_cast<char*>(bytes.data()), bytes.size(), "r"),
                  &std::fclose);
    return reports::AnswerBearings(settings, kTime, in.get(), nowhere);
}

int Print(std::string_view bytes, std::FILE* nowhere)
{
    static const Settings settings = DefaultSettings();
    static fuzz::NamedBytes file;
    return reports::PrintBearings(settings, file.Hold(bytes), kTime, nowhere);
}
} // namespace

// The table of bearings, from lines on standard input and from a file of places; the first byte chooses.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const File nowhere(std::fopen("/dev/null", "w"), &std::fclose);
    if (size == 0)
        return 0;
    const std::string_view bytes = fuzz::BytesOf(data + 1, size - 1);
    const int status = data[0] % 2 == 0 ? Answer(bytes, nowhere.get()) : Print(bytes, nowhere.get());
    fuzz::Demand(status >= 0 && status <= 2);
    return 0;
}
