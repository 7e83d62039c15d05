#include "support/ModalScript.h"

#include <wx/dialog.h>
#include <wx/msgdlg.h>

#include "support/Incidents.h"

namespace
{
int g_active = 0;
}

ShownDialog::ShownDialog(wxDialog* dialog)
    : caption(dialog->GetTitle()), parent(dialog->GetParent()),
      className(wxString(dialog->GetClassInfo()->GetClassName()).ToStdString())
{
    if (auto const* box = dynamic_cast<wxMessageDialogBase*>(dialog))
    {
        text = box->GetMessage();
        caption = box->GetCaption();
        style = box->GetMessageDialogStyle();
    }
}

std::string ShownDialog::Describe() const
{
    return className + " \"" + caption.ToStdString(wxConvUTF8) + "\": " + text.ToStdString(wxConvUTF8);
}

ModalScript::ModalScript()
{
    Register();
    ++g_active;
}

ModalScript::~ModalScript()
{
    --g_active;
    Unregister();
    if (!m_answers.empty())
        incidents::Report(std::to_string(m_answers.size()) + " scripted answers met no dialog");
}

ModalScript& ModalScript::Then(Answer answer)
{
    m_answers.push_back(std::move(answer));
    return *this;
}

ModalScript& ModalScript::Then(int id)
{
    return Then([id](wxDialog*) { return id; });
}

bool ModalScript::Active() { return g_active > 0; }

int ModalScript::Enter(wxDialog* dialog)
{
    m_shown.emplace_back(dialog);
    if (m_answers.empty())
    {
        incidents::Report("a dialog past the last answer: " + m_shown.back().Describe());
        return wxID_CANCEL;
    }
    auto const answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer(dialog);
}
