#include "panes/StatusBar.h"

#include <catch2/catch.hpp>

#include <wx/gauge.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include "engine/Globals.h"
#include "panes/ProgressDialog.h"
#include "support/Find.h"
#include "support/Stage.h"

namespace
{
/// A frame with the status bar, as a host makes it.
struct BarStage : Stage
{
    explicit BarStage(bool gui = true) : Stage(wxSize(700, 300))
    {
        Zenqo_SYSTEM_NAMESPACE::RUN_GUI = gui;
        bar = new StatusBar(Frame(), "ignored");
        Zenqo_SYSTEM_NAMESPACE::RUN_GUI = true;
        Frame()->SetStatusBar(bar);
        Frame()->SendSizeEvent();
        Pump(100);
        gauge = Find<wxGauge>(bar);
    }

    void Tick(int seconds = 1)
    {
        wxTimer timer(bar, 6021);
        for (; seconds > 0; --seconds)
        {
            wxTimerEvent event(timer);
            bar->OnTimer(event);
        }
    }

    ProgressDialog* Progress() const { return Find<ProgressDialog>(Frame()); }
    wxString Elapsed() const { return FindAll<wxStaticText>(Progress())[2]->GetLabel(); }
    wxString Remaining() const { return FindAll<wxStaticText>(Progress())[3]->GetLabel(); }

    wxRect Field(int n) const
    {
        wxRect field;
        bar->GetFieldRect(n, field);
        return field;
    }

    StatusBar* bar;
    wxGauge* gauge;
};

void MovePointer(wxPoint const& onScreen)
{
    wxUIActionSimulator().MouseMove(onScreen);
    Pump(60);
}
} // namespace

TEST_CASE("status bar: three fields and a gauge in the second")
{
    BarStage stage;
    auto* const bar = stage.bar;
    CHECK((bar->GetWindowStyle() & 65840) == 65840);
    REQUIRE(bar->GetFieldsCount() == 3);
    CHECK(bar->GetStatusWidth(0) == -1);
    CHECK(bar->GetStatusWidth(1) == 200);
    CHECK(bar->GetStatusWidth(2) == 3);
    for (int i = 0; i < 3; ++i)
        CHECK(bar->GetStatusStyle(i) == wxSB_FLAT);
    REQUIRE(stage.gauge);
    CHECK(stage.gauge->GetRange() == 90);
    CHECK(stage.gauge->GetValue() == 0);
    CHECK(stage.gauge->IsShown());
    CHECK(stage.gauge->HasFlag(wxGA_HORIZONTAL));
    CHECK(stage.gauge->HasFlag(wxGA_SMOOTH));
    CHECK(stage.gauge->GetPosition() == stage.Field(1).GetPosition());
    CHECK(stage.gauge->GetSize().x == stage.Field(1).width);
    CHECK(stage.Progress() == nullptr);

    stage.Frame()->SetSize(900, 320);
    Pump(150);
    CHECK(stage.gauge->GetPosition() == stage.Field(1).GetPosition());
}

TEST_CASE("status bar: seconds as hours, minutes and seconds")
{
    BarStage stage;
    struct { unsigned long seconds; char const* text; } const cases[] = {
        {0, "00:00:00"}, {9, "00:00:09"}, {10, "00:00:10"}, {59, "00:00:59"}, {60, "00:01:00"},
        {69, "00:01:09"}, {599, "00:09:59"}, {600, "00:10:00"}, {3599, "00:59:59"}, {3600, "01:00:00"},
        {4199, "01:09:59"}, {4200, "01:10:00"}, {35999, "09:59:59"}, {36000, "10:00:00"},
        {86400, "24:00:00"}, {215999, "59:59:59"}, {216000, "unknown"}, {~0ul, "unknown"}};
    for (auto const& [seconds, text] : cases)
        CHECK(stage.bar->SecsToTime(seconds) == text);
}

TEST_CASE("status bar: a message gets a field of its own, and the gauge moves at the next size")
{
    BarStage stage;
    auto* const bar = stage.bar;
    wxString const message = "Sampling: chain 2 of 4, burn-in";
    auto const before = stage.gauge->GetPosition();
    bar->SetGaugeMessage(message);
    REQUIRE(bar->GetFieldsCount() == 4);
    CHECK(bar->GetStatusWidth(0) == -1);
    CHECK(bar->GetStatusWidth(1) == bar->GetTextExtent(message).x + 10);
    CHECK(bar->GetStatusWidth(2) == 200);
    CHECK(bar->GetStatusWidth(3) == 3);
    for (int i = 0; i < 4; ++i)
        CHECK(bar->GetStatusStyle(i) == wxSB_FLAT);
    CHECK(bar->GetStatusText(1) == message);
    CHECK(stage.gauge->GetPosition() == before);

    stage.Frame()->SetSize(800, 300);
    Pump(150);
    CHECK(stage.gauge->GetPosition() == stage.Field(2).GetPosition());
    CHECK(stage.gauge->GetSize().x == stage.Field(2).width);
    stage.bar->ShowGauge();
    stage.bar->SetGaugeValue(40);
    Pump(100);
    Keep(Photograph(stage.bar), "StatusBar");

    bar->SetGaugeMessage("");
    REQUIRE(bar->GetFieldsCount() == 3);
    CHECK(bar->GetStatusWidth(1) == 200);
    CHECK(bar->GetStatusText(1).empty());
    stage.Frame()->SetSize(700, 300);
    Pump(150);
    CHECK(stage.gauge->GetPosition() == stage.Field(1).GetPosition());
    stage.bar->HideGauge();
}

TEST_CASE("status bar: values and ranges that the gauge would refuse are ignored")
{
    BarStage stage;
    stage.bar->SetGaugeValue(90);
    CHECK(stage.gauge->GetValue() == 90);
    for (int const outside : {91, -1, 1000000, -1000000})
    {
        stage.bar->SetGaugeValue(outside);
        CHECK(stage.gauge->GetValue() == 90);
    }
    stage.bar->SetGaugeRange(-5);
    CHECK(stage.gauge->GetRange() == 90);
    stage.bar->SetGaugeRange(200);
    stage.bar->SetGaugeValue(150);
    CHECK(stage.gauge->GetValue() == 150);
    stage.bar->SetGaugeRange(100);
    CHECK(stage.gauge->GetValue() == 100);
    stage.bar->SetGaugeRange(0);
    CHECK(stage.gauge->GetRange() == 0);
    stage.bar->SetGaugeValue(0);
    CHECK(stage.gauge->GetValue() == 0);
    stage.bar->ShowGauge();
    stage.bar->HideGauge();
}

TEST_CASE("status bar: a run counts the seconds and estimates the rest")
{
    BarStage stage;
    stage.bar->ShowGauge();
    REQUIRE(stage.Progress());
    CHECK_FALSE(stage.Progress()->IsShown());
    CHECK(stage.Elapsed() == "unkown");
    CHECK(stage.Remaining() == "unkown");

    SECTION("at 45 of 90 after 10 seconds, 10 remain")
    {
        stage.Tick(9); // At 0 the estimate is 0.
        CHECK(stage.Elapsed() == "00:00:09");
        CHECK(stage.Remaining() == "00:00:00");
        stage.bar->SetGaugeValue(45);
        stage.Tick();
        CHECK(stage.Elapsed() == "00:00:10");
        CHECK(stage.Remaining() == "00:00:10");
        // 11 estimated, 10 - 1 left: the mean.
        stage.Tick();
        CHECK(stage.Remaining() == "00:00:10");
        // 1 + 12 estimated at 90 / 43.2...: round(0.5 * (round(90 / 40 * 12) - 12) + 0.5 * 9).
        stage.bar->SetGaugeValue(40);
        stage.Tick();
        CHECK(stage.Remaining() == "00:00:12");
    }
    SECTION("the constant 90 stays, whatever the range")
    {
        stage.bar->SetGaugeRange(180);
        stage.bar->SetGaugeValue(45);
        stage.Tick(10);
        CHECK(stage.Remaining() == "00:00:09"); // 1 2 2 3 4 5 6 7 8 9
    }
    SECTION("a value above 90 gives unknown, tick after tick")
    {
        stage.bar->SetGaugeRange(200);
        stage.bar->SetGaugeValue(150);
        for (int i = 0; i < 20; ++i)
        {
            stage.Tick();
            if (i > 0)
                CHECK(stage.Remaining() == "unknown");
        }
    }
    SECTION("the last estimate lives on into the next run")
    {
        stage.Tick(9);
        stage.bar->SetGaugeValue(9);
        stage.Tick(); // 90 remain.
        CHECK(stage.Remaining() == "00:01:30");
        stage.bar->HideGauge();
        CHECK(stage.Elapsed() == "unkown");
        CHECK(stage.Remaining() == "unkown");
        stage.bar->ShowGauge();
        stage.Tick(); // round(0.5 * 0 + 0.5 * 89)
        CHECK(stage.Elapsed() == "00:00:01");
        CHECK(stage.Remaining() == "00:00:45");
    }
    stage.bar->SetGaugeValue(30);
    stage.bar->HideGauge();
    CHECK(stage.gauge->GetValue() == 0);
    CHECK(stage.gauge->IsShown());
    CHECK(stage.bar->GetFieldsCount() == 3);
    CHECK_FALSE(stage.Progress()->IsShown());
}

TEST_CASE("status bar: its own timer ticks once a second between show and hide")
{
    BarStage stage;
    stage.bar->ShowGauge();
    stage.bar->SetGaugeValue(45);
    REQUIRE(PumpUntil([&] { return stage.Elapsed() == "00:00:02"; }, 4000));
    stage.bar->HideGauge();
    Pump(1300);
    CHECK(stage.Elapsed() == "unkown");
    stage.bar->ShowGauge();
    REQUIRE(PumpUntil([&] { return stage.Elapsed() == "00:00:01"; }, 3000));
    stage.bar->HideGauge();
}

TEST_CASE("status bar: a tick before any run does without a window")
{
    BarStage stage;
    stage.Tick(3);
    CHECK(stage.Progress() == nullptr);
    stage.bar->HideGauge();
    REQUIRE(stage.Progress());
    CHECK(stage.Remaining() == "unkown");
    CHECK_FALSE(stage.Progress()->IsShown());
}

TEST_CASE("status bar: the readout stands above the gauge while the pointer rests on it")
{
    BarStage stage;
    auto* const field = new wxTextCtrl(stage.Frame(), wxID_ANY);
    stage.Frame()->SendSizeEvent();
    field->SetFocus();
    Pump(100);
    stage.bar->ShowGauge();
    stage.bar->SetGaugeValue(30);
    MovePointer(stage.Frame()->ClientToScreen(wxPoint(20, 20)));
    stage.Tick();
    CHECK_FALSE(stage.Progress()->IsShown());

    auto const corner = stage.gauge->GetScreenPosition();
    MovePointer(corner + wxPoint(50, 5));
    CHECK(PumpUntil([&] { return stage.Progress()->IsShown(); }, 2500));
    Pump(150);
    auto const place = stage.Progress()->ClientToScreen(wxPoint(0, 0));
    CHECK(place.x == corner.x);
    CHECK(place.y == corner.y - 63);
    Keep(Photograph(stage.Frame()), "StatusBarProgress");
    // The keys still go where the user works.
    TypeText("still here");
    CHECK(field->GetValue() == "still here");

    MovePointer(corner + wxPoint(-30, 5));
    CHECK(PumpUntil([&] { return !stage.Progress()->IsShown(); }, 2500));

    MovePointer(corner + wxPoint(50, 5));
    stage.Tick();
    CHECK(stage.Progress()->IsShown());
    stage.bar->HideGauge();
    CHECK_FALSE(stage.Progress()->IsShown());
    stage.Tick();
    CHECK_FALSE(stage.Progress()->IsShown());
    MovePointer(stage.Frame()->ClientToScreen(wxPoint(20, 20)));
}

TEST_CASE("status bar: without a window all of it does nothing")
{
    BarStage stage(false);
    CHECK(stage.bar->GetFieldsCount() == 3);
    stage.bar->ShowGauge();
    stage.bar->SetGaugeValue(50);
    stage.bar->SetGaugeRange(20);
    stage.bar->SetGaugeMessage("message");
    stage.Tick(3);
    Pump(1200);
    CHECK(stage.gauge->GetValue() == 0);
    CHECK(stage.gauge->GetRange() == 90);
    CHECK(stage.bar->GetFieldsCount() == 3);
    CHECK(stage.Progress() == nullptr);
    stage.bar->HideGauge();
    CHECK(stage.Progress() == nullptr);
    wxSizeEvent size(wxSize(10, 10));
    size.Skip(false);
    stage.bar->OnSize(size);
    CHECK_FALSE(size.GetSkipped());
}

TEST_CASE("status bar: the frame goes away in the middle of a run")
{
    {
        BarStage stage;
        stage.bar->ShowGauge();
        MovePointer(stage.gauge->GetScreenPosition() + wxPoint(50, 5));
        stage.Tick();
        CHECK(stage.Progress()->IsShown());
        MovePointer(stage.Frame()->ClientToScreen(wxPoint(20, 20)));
    }
    Pump(1300);
}
