#include <wx/frame.h>
#include <wx/panel.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "panes/DataGrid.h"
#include "panes/DatasetsPane.h"
#include "panes/MatricesPane.h"
#include "panes/MatrixGrid.h"
#include "panes/ModelsPane.h"
#include "panes/ProgressDialog.h"
#include "panes/StatusBar.h"

namespace
{
/// A pane that is filled from a map, as a host fills it.
template <class Pane, class Map>
wxTopLevelWindow* Filled(Map& map, wxSize size)
{
    return FrameAround(
        [&map](wxFrame* frame)
        {
            auto* const pane = new Pane(frame);
            pane->Update(&map);
            return pane;
        },
        size);
}

/// A grid takes its contents only while it is shown.
template <class Grid, class Map>
wxTopLevelWindow* FilledGrid(Map& map, char const* chosen)
{
    return FrameAround(
        [&map, chosen](wxFrame* frame)
        {
            frame->Show();
            auto* const grid = new Grid(frame);
            grid->Update(&map);
            wxString name = chosen;
            grid->SetChoice(name);
            grid->ShowData(*map.at(chosen));
            return grid;
        },
        wxSize(700, 420));
}

wxTopLevelWindow* Running(Shelf&)
{
    auto* const frame = FrameAround([](wxFrame* parent) { return new wxPanel(parent); }, wxSize(700, 60));
    auto* const bar = new StatusBar(frame, "");
    frame->SetStatusBar(bar);
    bar->SetStatusText("Drawing from the posterior");
    bar->ShowGauge();
    bar->SetGaugeValue(36);
    bar->SetGaugeMessage("chain 1 of 2");
    frame->SendSizeEvent();
    return frame;
}

wxTopLevelWindow* Times(Shelf&)
{
    auto* const dialog = new ProgressDialog(nullptr);
    wxString elapsed = "00:02:07";
    wxString remaining = "00:03:10";
    dialog->SetElapsedTime(elapsed);
    dialog->SetRemainingTime(remaining);
    return dialog;
}
} // namespace

std::vector<Entry> PaneEntries()
{
    wxSize const side(240, 420);
    wxSize const list(240, 160);
    return {
        {"panes", "DatasetsPane", [side](Shelf& shelf) { return Filled<DatasetsPane>(shelf.datasets, side); }},
        {"panes", "MatricesPane", [list](Shelf& shelf) { return Filled<MatricesPane>(shelf.matrices, list); }},
        {"panes", "ModelsPane", [list](Shelf& shelf) { return Filled<ModelsPane>(shelf.models, list); }},
        {"panes", "DataGrid", [](Shelf& shelf) { return FilledGrid<DataGrid>(shelf.datasets, "cars"); }},
        {"panes", "DataGrid, missing values",
         [](Shelf& shelf) { return FilledGrid<DataGrid>(shelf.datasets, "airquality"); }},
        {"panes", "MatrixGrid",
         [](Shelf& shelf) { return FilledGrid<MatrixGrid>(shelf.matrices, "design"); }},
        {"panes", "StatusBar", Running},
        {"panes", "ProgressDialog", Times},
    };
}
