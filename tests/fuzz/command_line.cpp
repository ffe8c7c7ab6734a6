#include "FuzzedBytes.h"

#include "app/CommandLine.h"

#include <vector>

// Arguments between zero bytes, as the system passes them. The first is the name of the program.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::string> words{"kavmap"};
    for (fuzz::Pieces arguments(fuzz::BytesOf(data, size), '\0'); !arguments.AtEnd();)
        words.emplace_back(arguments.Next());
    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    const app::CommandLine line = app::ParseCommandLine(static_cast<int>(words.size()), argv.data());
    if (line.exitStatus)
        fuzz::Demand(*line.exitStatus == 0 || *line.exitStatus == 1);
    else
        fuzz::Demand(line.voacaplTimeout.count() >= 1);
    return 0;
}
