#pragma once

#include "scan/ball_counts.h"
#include "scan/frequencies.h"
#include "scan/graph.h"
#include "scan/graph_options.h"
#include "scan/main_scan.h"
#include "scan/scan_filter.h"
#include "scan/winner_scan.h"
#include "store/browsing.h"
#include "store/entry.h"
#include "store/entry_boxes.h"
#include "store/loading.h"
#include "store/main_window.h"
#include "store/row_editor.h"
#include "store/undo.h"
#include "store/working_copy.h"

namespace shell {

// The main window together with the subjects that work in it.
class MainWindowSubjects : public store::MainWindow,
                           private store::Browsing::Neighbours,
                           private store::Entry::Neighbours {
 public:
  // `frame` is what loading asks of the frame; everything must outlive the window.
  class FrameSide : public scan::GraphOptions::Neighbours, public scan::Frequencies::Neighbours {
   public:
    virtual void DoMenus() = 0;
    virtual void MarkMainWindow(bool in_use) = 0;
    virtual void ShowStatus(const std::string& text) = 0;
    virtual void SetHelpFile(const std::string& path) = 0;
  };

  MainWindowSubjects(store::Session& session, base::Desktop& desktop,
                     store::ErrorReporter& reporter, FrameSide& frame);

  store::Browsing& Browsing() { return browsing_; }
  scan::GraphOptions& GraphOptions() { return graph_options_; }
  scan::Frequencies& Frequencies() { return frequencies_; }
  store::WorkingCopy& WorkingCopy() { return working_copy_; }
  store::Undo& Undo() { return undo_; }

  void Form_Load();
  void Form_Unload();

 private:
  // Passes loading's wishes on to the frame and the graph.
  class LoadingSide : public store::Loading::Neighbours {
   public:
    LoadingSide(FrameSide& frame, scan::Graph& graph) : frame_(frame), graph_(graph) {}
    void DoBarColors() override { graph_.DoBarColors(); }
    void DoMenus() override { frame_.DoMenus(); }
    void MarkMainWindow(bool in_use) override { frame_.MarkMainWindow(in_use); }
    void ShowStatus(const std::string& text) override { frame_.ShowStatus(text); }
    void SetHelpFile(const std::string& path) override { frame_.SetHelpFile(path); }

   private:
    FrameSide& frame_;
    scan::Graph& graph_;
  };

  void ReloadBuffers() override;
  void ZeroItMainWindow() override { counts_.ZeroItMainWindow(); }
  void FillCommand4TagMainWindow() override { counts_.FillCommand4TagMainWindow(); }
  bool DoDataBase(const store::Edit& edit) override { return working_copy_.DoDataBase(edit); }
  void PlaceLabels();

  store::Workplace place_;
  FrameSide& frame_;
  scan::BallCounts counts_;
  scan::Graph graph_;
  scan::Frequencies frequencies_;
  LoadingSide loading_side_;
  store::Browsing browsing_;
  store::Entry entry_;
  store::EntryBoxes entry_boxes_;
  store::RowEditor row_editor_;
  store::WorkingCopy working_copy_;
  store::Undo undo_;
  store::Loading loading_;
  scan::MainScan main_scan_;
  scan::ScanFilter scan_filter_;
  scan::GraphOptions graph_options_;
  scan::WinnerScan winner_scan_;
};

}  // namespace shell
