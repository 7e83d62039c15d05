// Measures what the library and the workbench take, beside the least that it could take.
//
// zenqo-benchmarks [WORD ...]   all figures, or those with one of the words in their names
//
// The exit status is 1 if a bound is missed.

#include <clocale>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include <wx/app.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"

namespace
{
class BenchmarksApp : public wxApp
{
public:
    bool OnInit() override
    {
        std::setlocale(LC_ALL, "");
        std::setlocale(LC_NUMERIC, "C");
        SetExitOnFrameDelete(false);
        // Inside of the event loop the widgets live as they do in a program.
        CallAfter([this] { Measure(); });
        return true;
    }

    int OnRun() override
    {
        wxApp::OnRun();
        return m_status;
    }

private:
    void Measure()
    {
        std::vector<std::string> words;
        for (int i = 1; i < argc; ++i)
            words.push_back(argv[i].ToStdString(wxConvLibc));
        try
        {
            benchmarks::Table table(words);
            benchmarks::MeasureGrids(table);
            benchmarks::MeasureNumberGrids(table);
            benchmarks::MeasureTrees(table);
            benchmarks::MeasureConsole(table);
            benchmarks::MeasurePickers(table);
            benchmarks::MeasureVariablePickers(table);
            benchmarks::MeasureEquations(table);
            benchmarks::MeasureStart(table);
            benchmarks::MeasureImport(table);
            benchmarks::MeasureData(table);
            benchmarks::MeasureAnalysis(table);
            benchmarks::MeasureEstimation(table);
            benchmarks::MeasureOutside(table);
            m_status = table.AllKept() ? 0 : 1;
        }
        catch (std::exception const& error)
        {
            std::fprintf(stderr, "zenqo-benchmarks: %s\n", error.what());
            m_status = 2;
        }
        ExitMainLoop();
    }

    int m_status = 0;
};
} // namespace

wxIMPLEMENT_APP(BenchmarksApp);
