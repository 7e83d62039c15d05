#include "workbench/outside/JagsRun.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <limits>
#include <sstream>

#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"
#include "workbench/outside/ProgramRun.h"
#include "workbench/outside/RunFolder.h"

namespace workbench
{
namespace
{
/// JAGS counts iterations in an int, and takes a seed of that size.
constexpr std::int64_t LARGEST_INT = std::numeric_limits<int>::max();

/// The gauge moves so often.
constexpr std::int64_t MARKS = 100;

/// The prime that keeps the chains' seeds apart.
constexpr std::uint64_t SEED_STEP = 1000003;

/// Reads the marks that JAGS sets while it updates: a star for each `MarkEvery(sampler)` iterations.
class JagsProgress : public Listener
{
public:
    explicit JagsProgress(std::int64_t marks) : m_marks(static_cast<double>(marks)) {}

    void Hear(std::string const& piece) override
    {
        m_seen += static_cast<double>(std::count(piece.begin(), piece.end(), '*'));
    }

    /// The marks are for the gauge alone: "-----| 1000" and "***** 100%", without a dash or a star for
    /// a burn-in that is shorter than what one of them stands for.
    bool Shows(std::string const& line) const override
    {
        return line.find_first_of("-|*") != 0;
    }

    double Fraction() const override { return std::min(1.0, m_seen / m_marks); }

private:
    double m_marks;
    double m_seen = 0.0;
};

std::int64_t Quotient(std::int64_t dividend, std::int64_t divisor)
{
    return (dividend + divisor - 1) / divisor;
}

std::int64_t MarkEvery(SamplerSettings const& sampler) { return Quotient(sampler.Iterations(), MARKS); }

std::string InitialValuesFile(int chain) { return "inits" + std::to_string(chain) + ".R"; }

/// The commands that JAGS carries out. They name files of its folder only: nothing in them needs a
/// quote.
std::string Commands(JagsRun const& run)
{
    std::string text;
    auto const& sampler = run.sampler;
    auto const update = [&](std::int64_t iterations)
    {
        if (iterations > 0)
            text += "update " + std::to_string(iterations) + ", by(" + std::to_string(MarkEvery(sampler))
                    + ")\n";
    };
    // The deviance is an affair of a module that is not loaded by itself.
    if (std::find(run.monitors.begin(), run.monitors.end(), "deviance") != run.monitors.end())
        text += "load dic\n";
    text += "model in \"model.bug\"\n";
    if (!run.data.empty())
        text += "data in \"data.R\"\n";
    text += "compile, nchains(" + std::to_string(sampler.chains) + ")\n";
    for (int chain = 1; chain <= sampler.chains; ++chain)
        text +=
            "parameters in \"" + InitialValuesFile(chain) + "\", chain(" + std::to_string(chain) + ")\n";
    text += "initialize\n";
    update(sampler.burnIn);
    for (auto const& monitor : run.monitors)
        text += "monitor " + monitor + ", thin(" + std::to_string(sampler.thin) + ")\n";
    update(sampler.draws * sampler.thin);
    return text + "coda *\nexit\n";
}

void WriteFiles(JagsRun const& run, RunFolder const& folder)
{
    folder.Write("model.bug", InputFile(run.model).ReadAll());
    folder.Write("data.R", JagsFile(run.data));
    auto initialValues = run.initialValues;
    initialValues.resize(static_cast<std::size_t>(run.sampler.chains));
    int chain = 0;
    for (auto const& values : initialValues)
    {
        ++chain;
        folder.Write(InitialValuesFile(chain),
                     JagsFile(values) + "`.RNG.name` <- \"base::Mersenne-Twister\"\n`.RNG.seed` <- "
                         + std::to_string(JagsSeed(run.sampler.seed, chain)) + "\n");
    }
    folder.Write("commands", Commands(run));
}

[[noreturn]] void FailToRead() { throw Error("JAGS wrote its draws in a form that is not known"); }

/// The names of the quantities, each with as many draws as the run was to keep.
std::vector<std::string> ReadIndex(std::string const& text, std::int64_t draws)
{
    std::vector<std::string> names;
    std::istringstream stream(text);
    std::int64_t before = 0;
    std::int64_t first = 0;
    std::int64_t last = 0;
    for (std::string name; stream >> name >> first >> last; before = last)
    {
        names.push_back(name);
        if (first != before + 1 || last != before + draws)
            FailToRead();
    }
    return names;
}

/// Reads the lines of one chain, iteration and draw, quantity after quantity.
void ReadChain(std::string const& text, Eigen::Ref<Eigen::MatrixXd> draws)
{
    char const* at = text.data();
    char const* const end = at + text.size();
    for (double& draw : draws.reshaped())
    {
        at = std::find(at, end, ' ');
        while (at != end && *at == ' ')
            ++at;
        auto const [behind, error] = std::from_chars(at, end, draw);
        bool const isMissing = end - at >= 2 && at[0] == 'N' && at[1] == 'A';
        if (error != std::errc() && !isMissing)
            FailToRead();
        if (isMissing)
            draw = std::numeric_limits<double>::quiet_NaN();
        at = std::find(behind, end, '\n');
    }
    if (std::find(at, end, ' ') != end)
        FailToRead();
}

std::shared_ptr<Model> ReadDraws(RunFolder const& folder, JagsRun const& run)
{
    auto model = std::make_shared<Model>();
    auto const perChain = run.sampler.draws;
    model->chains = run.sampler.chains;
    model->drawNames = ReadIndex(InputFile(folder.Path("CODAindex.txt")).ReadAll(), perChain);
    model->draws.resize(perChain * model->chains, static_cast<Eigen::Index>(model->drawNames.size()));
    for (int chain = 0; chain < model->chains; ++chain)
        ReadChain(InputFile(folder.Path("CODAchain" + std::to_string(chain + 1) + ".txt")).ReadAll(),
                  model->draws.middleRows(chain * perChain, perChain));
    return model;
}

/// Whether one of the quantities is, or is an element of, what `monitor` names.
bool IsAmong(std::vector<std::string> const& names, std::string const& monitor)
{
    auto const stem = monitor.substr(0, monitor.find('['));
    return std::any_of(names.begin(), names.end(),
                       [&](auto const& name) { return name.substr(0, name.find('[')) == stem; });
}
} // namespace

std::uint64_t JagsSeed(std::uint64_t seed, int chain)
{
    constexpr auto modulus = static_cast<std::uint64_t>(LARGEST_INT);
    return (seed % modulus + SEED_STEP * static_cast<std::uint64_t>(chain - 1)) % modulus;
}

void CheckJagsRun(JagsRun const& run)
{
    if (run.monitors.empty())
        throw Error("no parameters are given to be monitored");
    for (auto const& monitor : run.monitors)
        CheckMonitor(monitor);
    if (run.initialValues.size() > static_cast<std::size_t>(run.sampler.chains))
        throw Error("initial values are given for chain " + std::to_string(run.initialValues.size())
                    + ", but the number of chains is " + std::to_string(run.sampler.chains));
    if (run.sampler.Iterations() > LARGEST_INT)
        throw Error("burn-in, draws and thinning make more iterations than JAGS can count, which are "
                    + std::to_string(LARGEST_INT));
}

std::shared_ptr<Model> RunJags(JagsRun const& run, Output& output, Progress& progress)
{
    CheckJagsRun(run);
    RunFolder const folder;
    WriteFiles(run, folder);
    ProgressScope const scope(progress, "Running JAGS");
    auto const& sampler = run.sampler;
    JagsProgress listener(Quotient(sampler.burnIn, MarkEvery(sampler))
                          + Quotient(sampler.draws * sampler.thin, MarkEvery(sampler)));
    auto const said = RunProgram(JAGS, {{}, {"commands"}, folder.Path()}, listener, output, progress);
    // A monitor that can't be set is no failure of JAGS.
    if (said.find("Failed to set trace monitor") != std::string::npos)
        throw Error("JAGS could not monitor all that was asked for: " + said);
    if (!std::filesystem::exists(folder.Path("CODAindex.txt")))
        throw Error("JAGS gave no draws" + (said.empty() ? "" : ": " + said));
    auto const model = ReadDraws(folder, run);
    for (auto const& monitor : run.monitors)
        if (!IsAmong(model->drawNames, monitor))
            throw Error("JAGS gave no draws of \"" + monitor + "\"" + (said.empty() ? "" : ": " + said));
    return model;
}
} // namespace workbench
