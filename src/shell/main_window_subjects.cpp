#include "shell/main_window_subjects.h"

#include "main/draw_on_show.h"

namespace shell {

MainWindowSubjects::MainWindowSubjects(store::Session& session, base::Desktop& desktop,
                                       base::ErrorReporter& reporter, FrameSide& frame)
    : place_{session, *this, desktop, reporter},
      frame_(frame),
      counts_(place_),
      graph_(place_),
      frequencies_(place_, graph_, frame),
      loading_side_(frame, graph_),
      browsing_(place_, *this),
      entry_(place_, browsing_, *this),
      entry_boxes_(place_),
      row_editor_(place_, browsing_),
      working_copy_(place_, browsing_),
      undo_(place_, browsing_),
      loading_(place_, browsing_, loading_side_),
      main_scan_(place_, browsing_, entry_, counts_, graph_, frequencies_),
      scan_filter_(place_, browsing_, entry_, frequencies_),
      graph_options_(place_, browsing_, graph_, frame),
      winner_scan_(place_) {
  on.load = base::Trap(place_.reporter, "Form_Load", *this, &MainWindowSubjects::Form_Load);
  on.activate = [this] { loading_.Form_Activate(); };
  on.unload = [this] { Form_Unload(); };
  browsing_.Wire();
  entry_.Wire();
  entry_boxes_.Wire();
  row_editor_.Wire();
  graph_.Wire();
  frequencies_.Wire();
  main_scan_.Wire();
  scan_filter_.Wire();
  graph_options_.Wire();
  winner_scan_.Wire();
}

void MainWindowSubjects::Form_Load() {
  place_.session.data_base_changed = false;
  place_.session.shown_place = 0;
  main_window::CloseRowEditor(place_.session, *this);
  // Nothing can be done to a draw before the first one is on show.
  cmdedit.SetEnabled(false);
  Command18.SetEnabled(false);
  PlaceLabels();
  place_.session.main_window_loaded = true;
  ListView1.Clear();
  graph_.SetBarColours(scan::kBlueStyle);
  loading_.LoadFirstDatabase();
  graph_.Label3_Click();
  entry_.QNDLabels();
}

// Without its draws the window could only be closed.
void MainWindowSubjects::ReloadBuffers() {
  Form_Load();
  loading_.FillBuffers();
}

void MainWindowSubjects::PlaceLabels() {
  for (int ball = 0; ball <= main_window::kLastBar; ++ball) {
    for (base::Label* label : {&Label1(ball), &Label2(ball)}) {
      label->SetLeft(ProgressBar1(ball).Left());
      label->SetWidth(ProgressBar1(ball).Width());
    }
  }
}

void MainWindowSubjects::Form_Unload() {
  place_.session.main_window_loaded = false;
  frame_.MarkMainWindow(false);
  working_copy_.RewriteFromTable();
}

}  // namespace shell
