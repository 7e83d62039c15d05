#pragma once

#include <cstring>
#include <memory>
#include <string>

#include <catch2/catch.hpp>

#include "workbench/Recorder.h"
#include "workbench/engine/Workspace.h"
#include "workbench/script/Interpreter.h"

/// Equal to the last bit, signs and payloads of NaN included.
inline bool SameBits(Eigen::MatrixXd const& a, Eigen::MatrixXd const& b)
{
    return a.rows() == b.rows() && a.cols() == b.cols()
           && (a.size() == 0
               || std::memcmp(a.data(), b.data(), static_cast<std::size_t>(a.size()) * sizeof(double))
                      == 0);
}

inline bool SameBits(Dataset const& a, Dataset const& b)
{
    return a.name == b.name && a.varNames == b.varNames && SameBits(a.data, b.data)
           && a.labelledColumns.size() == b.labelledColumns.size()
           && std::equal(a.labelledColumns.begin(), a.labelledColumns.end(), b.labelledColumns.begin(),
                         [](auto const& x, auto const& y)
                         {
                             return x.first == y.first && x.second.levels == y.second.levels
                                    && x.second.labels == y.second.labels;
                         });
}

/// A workspace and an interpreter for commands that work on datasets.
struct DataDesk
{
    workbench::Workspace workspace;
    Recorder output;
    Meter meter;
    workbench::Interpreter interpreter{workspace, output, meter};

    Dataset const& operator[](std::string const& name) const { return *workspace.datasets.at(name); }

    /// Runs a script that must not fail, and gives what it printed.
    std::string Run(std::string const& script)
    {
        output.text.clear();
        INFO(script);
        bool const done = interpreter.Run(script, workbench::Interpreter::Echo::None);
        INFO((output.errors.empty() ? std::string() : output.errors.back()));
        REQUIRE(done);
        return output.text;
    }

    /// Runs a script that must fail, gives its one error, and checks that nothing has changed: the
    /// workspace holds the same objects, and these the same bits.
    std::string Failure(std::string const& script)
    {
        INFO(script);
        auto const before = workspace;
        std::map<std::string, Dataset> copies;
        for (auto const& [name, dataset] : workspace.datasets)
            copies[name] = *dataset;
        output.errors.clear();
        CHECK_FALSE(interpreter.Run(script, workbench::Interpreter::Echo::None));
        CHECK(workspace.SameObjects(before));
        for (auto const& [name, dataset] : workspace.datasets)
            CHECK(SameBits(*dataset, copies.at(name)));
        return output.errors.size() == 1 ? output.errors[0] : "(not one error)";
    }
};
