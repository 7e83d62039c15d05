// Tests with faults, one each, that the harness must turn into failures: see harness_test.py.

#include <catch2/catch.hpp>

#include <cstdio>

#include <wx/gauge.h>
#include <wx/log.h>
#include <wx/msgdlg.h>

#include "support/ModalScript.h"
#include "support/Stage.h"

TEST_CASE("no fault")
{
    Stage stage;
    ModalScript script;
    script.Then(wxID_OK);
    wxMessageBox("asked for", "Warning", wxOK, stage.Frame());
    CHECK(script.Shown().size() == 1);
}

TEST_CASE("a check that fails")
{
    CHECK(1 == 2);
}

TEST_CASE("a toolkit assertion")
{
    Stage stage;
    auto* const gauge = new wxGauge(stage.Frame(), wxID_ANY, 10);
    gauge->SetValue(11);
    CHECK(gauge->GetValue() == 0);
}

TEST_CASE("a line in the log")
{
    wxLogError("something went wrong");
    CHECK(true);
}

TEST_CASE("a byte on standard error")
{
    std::fputc('!', stderr);
    CHECK(true);
}

TEST_CASE("a box that nobody asked for")
{
    Stage stage;
    CHECK(wxMessageBox("unasked", "Surprise", wxOK, stage.Frame()) == wxCANCEL);
}

TEST_CASE("a box past the script")
{
    Stage stage;
    ModalScript script;
    script.Then(wxID_OK);
    wxMessageBox("first", "Warning", wxOK, stage.Frame());
    wxMessageBox("second", "Warning", wxOK, stage.Frame());
    CHECK(script.Shown().size() == 2);
}

TEST_CASE("an answer that meets no box")
{
    ModalScript script;
    script.Then(wxID_OK);
    CHECK(script.Shown().empty());
}
