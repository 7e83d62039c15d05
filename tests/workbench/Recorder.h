#pragma once

#include <string>
#include <vector>

#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"
#include "workbench/script/Output.h"

/// Keeps what a script puts out.
class Recorder : public workbench::Output
{
public:
    void Code(std::string const& source) override { codes.push_back(source); }
    void Text(std::string const& piece) override { text += piece; }
    void Terminal(std::string const& piece) override { terminal += piece; }
    void Matrix(Eigen::MatrixXd const& matrix) override { matrices.push_back(matrix); }
    void Warning(std::string const& message) override { warnings.push_back(message); }
    void Error(std::string const& message) override { errors.push_back(message); }
    void Line() override { ++lines; }
    int MaxLines() const override { return maxLines; }

    std::vector<std::string> codes;
    std::string text;
    std::string terminal;
    std::vector<Eigen::MatrixXd> matrices;
    std::vector<std::string> warnings;
    std::vector<std::string> errors;
    int lines = 0;
    int maxLines = 0;
};

/// Counts the reports of progress, and presses stop at one of them if asked to.
class Meter : public workbench::Progress
{
public:
    void Begin(std::string const& message) override { begun.push_back(message); }
    void Update(double fraction) override
    {
        fractions.push_back(fraction);
        if (static_cast<int>(fractions.size()) == stopAt)
            throw workbench::Interrupted();
    }
    void End() override { ++ended; }

    std::vector<std::string> begun;
    std::vector<double> fractions;
    int ended = 0;
    int stopAt = 0; ///< The number of the report at which the user presses stop; 0 for never.
};
