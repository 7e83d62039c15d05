// How long a batch run takes to import a large file, and how much memory.

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

#include <stdlib.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "benchmarks/Process.h"

namespace benchmarks
{
namespace
{
constexpr int ROWS = 100000;
constexpr int COLUMNS = 20;

/// What the numbers of the file take in memory.
constexpr double DATA_MEGABYTES = ROWS * COLUMNS * 8 / 1e6;

/// A folder with the data and the scripts, removed at the end.
class Folder
{
public:
    Folder() : m_path((std::filesystem::temp_directory_path() / "zenqo-benchmarks-XXXXXX").string())
    {
        if (!mkdtemp(m_path.data()))
            throw std::runtime_error("no folder for the data");
        WriteData();
        std::ofstream(Path("nothing.zqs")) << "";
        std::ofstream(Path("import.zqs")) << "data = import(\"" << Path("data.csv") << "\", \",\");\n";
        std::ofstream(Path("nothing.inp")) << "";
        std::ofstream(Path("import.inp")) << "open \"" << Path("data.csv") << "\"\n";
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    Folder(Folder const&) = delete;
    Folder& operator=(Folder const&) = delete;

    std::string Path(std::string const& name) const { return m_path + "/" + name; }

private:
    void WriteData() const
    {
        std::mt19937 generator(1);
        std::normal_distribution<double> normal(0.0, 100.0);
        std::ofstream file(Path("data.csv"));
        for (int col = 1; col <= COLUMNS; ++col)
            file << "x" << col << (col < COLUMNS ? "," : "\n");
        for (int row = 0; row < ROWS; ++row)
            for (int col = 1; col <= COLUMNS; ++col)
                file << normal(generator) << (col < COLUMNS ? "," : "\n");
    }

    std::string m_path;
};

/// A command once without work and once with the import.
struct Runs
{
    Cost nothing;
    Cost import;

    double Seconds() const { return import.seconds - nothing.seconds; }
    double Megabytes() const { return import.megabytes - nothing.megabytes; }
};

Runs RunBoth(Folder const& folder, std::string const& command, std::string const& extension)
{
    auto const run = [&](char const* script) { return Run(command + " " + folder.Path(script + extension)); };
    return {run("nothing"), run("import")};
}
} // namespace

void MeasureImport(Table& table)
{
    Claim const wholeClaim{"import, 100,000 x 20, whole process: against gretlcli", 1.0};
    Claim const aloneClaim{"import, 100,000 x 20, less an empty run: against gretlcli", 1.0};
    Claim const memoryClaim{"import, 100,000 x 20, peak memory: against the numbers", 2.0, "MB"};
    if (!table.Wants(wholeClaim.name) && !table.Wants(aloneClaim.name) && !table.Wants(memoryClaim.name))
        return;
    Folder const folder;
    auto const workbench = [&]
    { return RunBoth(folder, ProgramBeside("zenqo-workbench") + " --batch", ".zqs"); };
    auto const peer = [&] { return RunBoth(folder, "gretlcli -b", ".inp"); };
    workbench();
    peer();

    Rounds whole;
    Rounds alone;
    Rounds memory;
    for (int i = 0; i < 9; ++i)
    {
        auto const ours = workbench();
        auto const theirs = peer();
        whole.Take([&] { return ours.import.seconds; }, [&] { return theirs.import.seconds; });
        alone.Take([&] { return ours.Seconds(); }, [&] { return theirs.Seconds(); });
        memory.Take([&] { return ours.Megabytes(); }, [] { return DATA_MEGABYTES; });
    }
    table.Add(wholeClaim, whole);
    table.Add(aloneClaim, alone);
    table.Add(memoryClaim, memory);
}
} // namespace benchmarks
