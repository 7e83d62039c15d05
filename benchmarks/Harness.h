#pragma once

#include <functional>
#include <string>
#include <vector>

namespace benchmarks
{
/// Prepares, does a piece of work, and gives what the work alone took.
using Measurement = std::function<double()>;

/// The seconds that `work` takes.
double Seconds(std::function<void()> const& work);

/// Handles all events and paints what is due, so that it does not fall into the next measurement.
void Settle();

/// The value in the middle; of an even number of values the upper one.
double Median(std::vector<double> values);

/// What is claimed of a figure: it is at most `bound` times its peer.
struct Claim
{
    std::string name;
    double bound;
    char const* unit = "s";
};

/// Two things measured in turn, round after round.
struct Rounds
{
    std::vector<double> measured;
    std::vector<double> peer;

    /// Measures both once more, one right after the other.
    void Take(Measurement const& measure, Measurement const& measurePeer);

    /// The median of the rounds' ratios. What slows the machine down for a while slows both of a
    /// round, so this stands still where the times themselves do not.
    double Ratio() const;
};

/// The table of all figures, printed line by line as they come.
class Table
{
public:
    /// Only figures with one of `words` in their names are wanted; all, if there are none.
    explicit Table(std::vector<std::string> words);

    bool Wants(std::string const& name) const;

    /// Measures both once without counting it, then in turn `rounds` times, and adds the figure.
    void Compare(Claim const& claim, Measurement const& measure, Measurement const& measurePeer,
                 int rounds = 9);

    /// Adds a figure if it is wanted.
    void Add(Claim const& claim, Rounds const& rounds);

    /// No bound was missed.
    bool AllKept() const { return m_missed == 0; }

private:
    std::vector<std::string> m_words;
    int m_missed = 0;
};
} // namespace benchmarks
