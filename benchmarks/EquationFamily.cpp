// How long it takes to enter a tab of EqsNotebook.

#include <wx/frame.h>
#include <wx/listbox.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "modelspec/EqsNotebook.h"
#include "modelspec/EqsNotebookPage.h"

namespace benchmarks
{
namespace
{
constexpr int VARIABLES = 500;

/// A system in which each equation has a dependent variable, in a window of its own.
class System
{
public:
    explicit System(std::size_t equations)
        : m_frame(new wxFrame(nullptr, wxID_ANY, "Equations", wxDefaultPosition, wxSize(700, 500)))
    {
        wxArrayString names;
        for (int i = 0; i <= VARIABLES; ++i)
            names.Add("variable" + std::to_string(i));
        m_notebook = new EqsNotebook(m_frame, names, 200);
        ChooseFirst(0);
        while (m_notebook->GetPageCount() <= equations)
        {
            std::size_t const added = m_notebook->GetPageCount() - 1;
            m_notebook->SetSelection(added);
            ChooseFirst(added);
        }
        m_frame->Show();
        Settle();
    }
    ~System() { m_frame->Destroy(); }

    /// Enters the first equation from the second.
    double EnterTab()
    {
        m_notebook->SetSelection(1);
        Settle();
        double const seconds = Seconds([this] { m_notebook->SetSelection(0); });
        Settle();
        return seconds;
    }

private:
    void ChooseFirst(std::size_t index)
    {
        auto* const page = dynamic_cast<EqsNotebookPage*>(m_notebook->GetPage(index));
        for (auto* const child : page->GetChildren())
            if (auto* const left = dynamic_cast<wxListBox*>(child))
            {
                left->SetSelection(0);
                break;
            }
        wxCommandEvent event;
        page->OnUpperButton(event);
    }

    wxFrame* m_frame;
    EqsNotebook* m_notebook;
};
} // namespace

void MeasureEquations(Table& table)
{
    Claim const claim{"EqsNotebook, 98 equations, entering a tab: against 2", 2};
    if (!table.Wants(claim.name))
        return;
    System many(98);
    System two(2);
    table.Compare(claim, [&] { return many.EnterTab(); }, [&] { return two.EnterTab(); }, 15);
}
} // namespace benchmarks
