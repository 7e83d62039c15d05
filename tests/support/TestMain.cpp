// Starts the toolkit, runs all tests inside of it, and fails each test in which something happened
// that must not (see Incidents.h).

#define CATCH_CONFIG_RUNNER
#include <catch2/catch.hpp>

#include <clocale>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/image.h>

#include "support/Incidents.h"

namespace
{
/// Fails the test case in which an incident was noted, while it can still fail.
struct IncidentListener : Catch::TestEventListenerBase
{
    using TestEventListenerBase::TestEventListenerBase;

    void testCaseEnded(Catch::TestCaseStats const& stats) override
    {
        for (auto const& incident : incidents::Take())
        {
            Catch::cout() << "INCIDENT in \"" << stats.testInfo.name << "\": " << incident << std::endl;
            ++failures;
        }
        TestEventListenerBase::testCaseEnded(stats);
    }

    static int failures;
};

int IncidentListener::failures = 0;
} // namespace

CATCH_REGISTER_LISTENER(IncidentListener)

int main(int argc, char** argv)
{
    wxApp::SetInstance(new wxApp);
    int noArguments = 1;
    if (!wxEntryStart(noArguments, argv))
        return 2;
    // The toolkit leaves the process in the "C" locale, where no text outside ASCII converts.
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
    wxTheApp->CallOnInit();
    wxTheApp->SetExitOnFrameDelete(false);
    wxInitAllImageHandlers();

    int failed = 0;
    {
        wxEventLoop loop;
        wxEventLoopActivator const activate(&loop);
        incidents::Watch();
        failed = Catch::Session().run(argc, argv);
        incidents::Unwatch();
    }
    wxEntryCleanup();
    return failed + IncidentListener::failures > 0 ? 1 : 0;
}
