#include "benchmarks/Harness.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include <wx/app.h>
#include <wx/evtloop.h>

namespace benchmarks
{
double Seconds(std::function<void()> const& work)
{
    using Clock = std::chrono::steady_clock;
    auto const start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void Settle()
{
    wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
    wxTheApp->ProcessIdle();
    wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
}

double Median(std::vector<double> values)
{
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void Rounds::Take(Measurement const& measure, Measurement const& measurePeer)
{
    Settle();
    measured.push_back(measure());
    Settle();
    peer.push_back(measurePeer());
}

double Rounds::Ratio() const
{
    std::vector<double> ratios;
    for (std::size_t i = 0; i < measured.size(); ++i)
        ratios.push_back(measured[i] / peer[i]);
    return Median(ratios);
}

Table::Table(std::vector<std::string> words) : m_words(std::move(words))
{
    std::printf("| %-58s | %10s | %10s | %5s | %5s | %-6s |\n", "figure", "measured", "peer", "ratio",
                "bound", "");
    std::printf("|%s|-----------:|-----------:|------:|------:|--------|\n", std::string(60, '-').c_str());
    std::fflush(stdout);
}

bool Table::Wants(std::string const& name) const
{
    return m_words.empty()
           || std::any_of(m_words.begin(), m_words.end(),
                          [&](auto const& word) { return name.find(word) != std::string::npos; });
}

void Table::Compare(Claim const& claim, Measurement const& measure, Measurement const& measurePeer,
                    int rounds)
{
    if (!Wants(claim.name))
        return;
    Rounds warmUp;
    warmUp.Take(measure, measurePeer);
    Rounds counted;
    for (int i = 0; i < rounds; ++i)
        counted.Take(measure, measurePeer);
    Add(claim, counted);
}

void Table::Add(Claim const& claim, Rounds const& rounds)
{
    if (!Wants(claim.name))
        return;
    bool const kept = rounds.Ratio() <= claim.bound;
    m_missed += kept ? 0 : 1;
    std::printf("| %-58s | %7.4f %-2s | %7.4f %-2s | %5.2f | %5.2f | %-6s |\n", claim.name.c_str(),
                Median(rounds.measured), claim.unit, Median(rounds.peer), claim.unit, rounds.Ratio(),
                claim.bound, kept ? "ok" : "missed");
    std::fflush(stdout);
}
} // namespace benchmarks
