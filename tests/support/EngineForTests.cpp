// The engine's symbols as the library's own tests define them: simple and predictable.

#include "tests/support/EngineForTests.h"

#include <cctype>

wxDEFINE_EVENT(wxEVT_PRINT_AND_RUN, wxCommandEvent);

namespace Zenqo_SYSTEM_NAMESPACE
{
bool RUN_GUI = true;
std::string ZENQO_SYSTEM = ".";
Eigen::VectorXd GLOBAL_Gibbs = (Eigen::VectorXd(5) << 20000, 10000, 1, 1, 42).finished();
Eigen::IOFormat GLOBAL_IOFormatConsole(6, 0, "\t", "\n", "", "", "", "");
Eigen::IOFormat GLOBAL_IOFormatInput(Eigen::FullPrecision, Eigen::DontAlignCols, ", ", "; ");
std::string GLOBAL_DirectoryJAGS = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryBUGS = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectorySTAN = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryMATLAB = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryOCTAVE = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryR = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectorySTATA = zenqo::DEFAULT_STRING;
} // namespace Zenqo_SYSTEM_NAMESPACE

std::string BreakLongMassage(std::string const& text, bool flag)
{
    return "<" + text + (flag ? "|true>" : "|false>");
}

std::string ExpandContractStringLong(std::string const& text) { return "<<" + text + ">>"; }

std::vector<std::string> g_checkedIds;

bool CheckID(std::string const& id)
{
    g_checkedIds.push_back(id);
    if (id.empty() || std::isdigit(static_cast<unsigned char>(id[0])))
        return false;
    for (unsigned char const c : id)
        if (!std::isalnum(c) && c != '_')
            return false;
    return true;
}

void ProcessID(std::string& id)
{
    for (char& c : id)
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
}
