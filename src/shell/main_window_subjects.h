#pragma once

#include "main/browsing.h"
#include "main/entry.h"
#include "main/entry_boxes.h"
#include "main/loading.h"
#include "main/main_window.h"
#include "main/row_editor.h"
#include "main/undo.h"
#include "main/working_copy.h"
#include "scan/ball_counts.h"
#include "scan/frequencies.h"
#include "scan/graph.h"
#include "scan/graph_options.h"
#include "scan/main_scan.h"
#include "scan/scan_filter.h"
#include "scan/winner_scan.h"

namespace shell {

// The main window together with the subjects that work in it.
class MainWindowSubjects : public main_window::MainWindow,
                           private main_window::Browsing::Neighbours,
                           private main_window::Entry::Neighbours {
 public:
  // `frame` is what loading asks of the frame; everything must outlive the window.
  class FrameSide : public scan::GraphOptions::Neighbours, public scan::Frequencies::Neighbours {
   public:
    virtual void DoMenus() = 0;
    virtual void MarkMainWindow(bool in_use) = 0;
    virtual void ShowStatus(const std::string& text) = 0;
    virtual void SetHelpFile(const std::string& path) = 0;
  };

  MainWindowSubjects(store::Session& session, base::Desktop& desktop, base::ErrorReporter& reporter,
                     FrameSide& frame);

  main_window::Browsing& Browsing() { return browsing_; }
  scan::GraphOptions& GraphOptions() { return graph_options_; }
  scan::Frequencies& Frequencies() { return frequencies_; }
  main_window::WorkingCopy& WorkingCopy() { return working_copy_; }
  main_window::Undo& Undo() { return undo_; }

  void Form_Load();
  void Form_Unload();

 private:
  // Passes loading's wishes on to the frame and the graph.
  class LoadingSide : public main_window::Loading::Neighbours {
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
  bool DoDataBase(const main_window::Edit& edit) override { return working_copy_.DoDataBase(edit); }
  void PlaceLabels();

  main_window::Workplace place_;
  FrameSide& frame_;
  scan::BallCounts counts_;
  scan::Graph graph_;
  scan::Frequencies frequencies_;
  LoadingSide loading_side_;
  main_window::Browsing browsing_;
  main_window::Entry entry_;
  main_window::EntryBoxes entry_boxes_;
  main_window::RowEditor row_editor_;
  main_window::WorkingCopy working_copy_;
  main_window::Undo undo_;
  main_window::Loading loading_;
  scan::MainScan main_scan_;
  scan::ScanFilter scan_filter_;
  scan::GraphOptions graph_options_;
  scan::WinnerScan winner_scan_;
};

}  // namespace shell
