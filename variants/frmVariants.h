#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/forms/Controls.h"
#include "variants/StudyRun.h"
#include "variants/VariantList.h"
#include "variants/VariantPlot.h"
#include "variants/VariantsAxes.h"
#include "workstation/main/frmMain.h"
#include "workstation/results/ResultTable.h"

namespace trelonit {

/// The window of the studies, "Варианты": axes, a study that runs in threads of its own, its
/// variants as table and plot, and the one that becomes the project. What was computed stays while
/// the program runs.
class frmVariants {
 public:
  /// So many variants are held for table and plot; best ones and fronts are of all.
  static constexpr std::size_t mostHeld = 200'000;

  /// What the plot has from left to right.
  enum PlotBy : Long { byHeight, byProgib };
  enum ColourBy : Long { byPanels, byScheme };

  frmVariants(const Services& services, frmMain& main);
  frmVariants(const frmVariants&) = delete;
  frmVariants& operator=(const frmVariants&) = delete;
  ~frmVariants();

  /// Takes the project as it stands. False, with the message of a calculation, where it cannot be
  /// calculated.
  bool Form_Load();
  /// Ends a study that runs, and keeps what was entered.
  void Form_Unload();
  /// Ends a study that runs, and waits for its threads; what is computed stays.
  void EndStudy();

  void cmdStart_Click();
  /// What is computed by then stays.
  void cmdCancel_Click();
  /// The chosen variant becomes the project, and the window closes.
  void cmdApply_Click();
  // Each asks for a name. The table is that which is shown, in its order.
  void mnuSaveCsv_Click();
  void mnuSaveSvg_Click();
  void mnuSavePng_Click(const std::function<std::string()>& bytes);

  /// Chooses a variant by its number from 0, or none.
  void Choose(std::optional<std::uint64_t> number);
  std::optional<std::uint64_t> Chosen() const { return chosen_; }
  void Sort(VariantOrder order);
  const VariantList& List() const { return list_; }
  /// All that pass of those that are held, and the front among all, as the plot shows them.
  std::vector<PlotPoint> Points() const;
  std::vector<PlotPoint> Front() const;
  PlotLabels Labels() const;
  /// A variant in words: its sizes, figures, and why it does not pass.
  std::string Describe(const VariantRow& row) const;
  /// These rows with all columns.
  static ResultTable TableOf(const std::vector<const VariantRow*>& rows);
  SettingsService& Settings() { return services_.Settings; }
  const NumberLocale& Locale() const { return services_.Locale; }
  const ProfileTypeArray& Catalogue() const { return main_.Model.ProfileTypes; }
  bool IsRunning() const { return run_ != nullptr && !ended_; }
  /// Of the study, from 0 to 1.
  double Share() const;

  /// Called in another thread when there is news to be taken.
  std::function<void()> Moved;
  void TakeNews();
  /// Called after the shown variants, or the plot, have become others.
  std::function<void()> Refreshed;
  std::function<void()> ChosenChanged;

  Label Form;
  VariantsAxes Axes;
  CheckBox chkOpinion;
  TextBox txtBest;
  Label lblBestFault;
  /// How many variants there are, and how long they take; red where there are too many.
  Label lblCount;
  Label lblProgress;
  /// That the project is another one than the study's, that own weight is inside the loads.
  Label lblNotice;
  /// The chosen variant.
  Label lblChosen;
  MenuEntry cmdStart;
  MenuEntry cmdCancel;
  MenuEntry cmdApply;
  MenuEntry mnuSaveCsv;
  MenuEntry mnuSavePlot;
  ComboBox cmbShow;
  TextBox txtFilter;
  Label lblShown;
  ComboBox cmbPlot;
  ComboBox cmbColour;
  CheckBox chkAllColumns;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  using Clock = std::chrono::steady_clock;

  static unsigned Jobs();
  void Connect();
  void Restore();
  void Store();
  void CountVariants();
  std::optional<std::size_t> BestCount();
  /// Measured once for a project, then by every study.
  double SecondsOfOne(const VariantSpace& space, bool byOpinion);
  void EndRun();
  void Tell(const StudyNews& news);
  void ShowEntries();
  void ShowShown();
  void ShowNotice();
  std::string CsvOfShown() const;
  PlotPoint PointOfRow(const VariantRow& row) const;

  Services services_;
  frmMain& main_;
  DesignInputs base_;
  // What Start would compute; nothing where the entries are wrong.
  std::optional<VariantSpace> toStart_;
  std::unique_ptr<StudyRun> run_;
  DesignInputs baseOfRun_;
  bool ended_ = true;
  Clock::time_point begun_;
  double seconds_ = 0;
  std::uint64_t done_ = 0;
  bool byOpinionOfRun_ = false;
  // Of one thread for one variant, by the program's own checks and by both; none before one is
  // measured.
  std::array<std::optional<double>, 2> secondsOfOne_;
  VariantList list_;
  std::optional<std::uint64_t> chosen_;
};

}  // namespace trelonit
