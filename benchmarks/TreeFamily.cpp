// How long DatasetsPane::Update takes for a large workspace.

#include <wx/frame.h>
#include <wx/treectrl.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "panes/DatasetsPane.h"

namespace benchmarks
{
namespace
{
constexpr int DATASETS = 200;
constexpr int VARIABLES = 500;

/// Datasets without observations: the tree shows names alone.
DatasetMap Workspace(int datasets)
{
    DatasetMap map;
    for (int i = 0; i < datasets; ++i)
    {
        auto dataset = std::make_shared<Dataset>();
        dataset->varNames.Add("_cons");
        for (int j = 0; j < VARIABLES; ++j)
            dataset->varNames.Add("variable" + std::to_string(j));
        map["dataset" + std::to_string(1000 + i)] = dataset;
    }
    return map;
}

class Window
{
public:
    Window()
        : m_frame(new wxFrame(nullptr, wxID_ANY, "Trees", wxDefaultPosition, wxSize(500, 400))),
          m_pane(new DatasetsPane(m_frame)),
          m_bare(new wxTreeCtrl(m_frame, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                m_pane->GetTreeCrtl()->GetWindowStyle()))
    {
        m_bare->SetFont(m_pane->GetTreeCrtl()->GetFont());
        auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
        sizer->Add(m_pane, 1, wxEXPAND);
        sizer->Add(m_bare, 1, wxEXPAND);
        m_frame->SetSizer(sizer);
        m_frame->Show();
    }
    ~Window() { m_frame->Destroy(); }

    double Update(DatasetMap& datasets)
    {
        double const seconds = Seconds([&] { m_pane->Update(&datasets); });
        Settle();
        m_pane->GetTreeCrtl()->DeleteAllItems();
        return seconds;
    }

    double InsertBarely(DatasetMap const& datasets)
    {
        double const seconds = Seconds(
            [&]
            {
                auto const root = m_bare->AddRoot("root");
                for (auto const& [key, dataset] : datasets)
                {
                    auto const branch = m_bare->AppendItem(root, dataset->name);
                    for (std::size_t i = 1; i < dataset->varNames.size(); ++i)
                        m_bare->AppendItem(branch, dataset->varNames[i]);
                }
                m_bare->ExpandAll();
            });
        Settle();
        m_bare->DeleteAllItems();
        return seconds;
    }

private:
    wxFrame* m_frame;
    DatasetsPane* m_pane;
    wxTreeCtrl* m_bare;
};
} // namespace

void MeasureTrees(Table& table)
{
    Window window;
    auto datasets = Workspace(DATASETS);
    auto twice = Workspace(2 * DATASETS);
    auto const update = [&window](DatasetMap& map) { return [&] { return window.Update(map); }; };

    table.Compare({"DatasetsPane::Update, 200 x 500: against a bare tree", 1.5}, update(datasets),
                  [&] { return window.InsertBarely(datasets); }, 5);
    table.Compare({"DatasetsPane::Update, 400 x 500: against 200", 2.2}, update(twice), update(datasets),
                  5);
}
} // namespace benchmarks
