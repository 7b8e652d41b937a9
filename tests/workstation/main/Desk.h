#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "resources/EmbeddedResources.h"
#include "tests/analysis/Designs.h"
#include "tests/support/TestServices.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

inline void PrintTo(const Message& message, std::ostream* stream) {
  *stream << '[' << message.Title << "] (" << static_cast<int>(message.Style) << ") "
          << message.Text;
}

inline void PrintTo(const Picture& picture, std::ostream* stream) {
  *stream << "picture " << static_cast<int>(picture.From) << ':' << picture.Number;
}

namespace test {

/// The program's resources without what a test takes away, which then raises 326.
class PartialResources : public ResourceService {
 public:
  std::string_view CustomBlock(Integer identifier) override {
    Require(MissingBlocks, identifier);
    return whole_.CustomBlock(identifier);
  }
  Picture Bitmap(Integer identifier) override {
    Require(MissingBitmaps, identifier);
    return whole_.Bitmap(identifier);
  }
  Picture Icon(Integer identifier) override {
    Require(MissingIcons, identifier);
    return whole_.Icon(identifier);
  }
  std::string String(Integer identifier) override {
    Require(MissingStrings, identifier);
    return About ? *About : whole_.String(identifier);
  }

  std::set<Integer> MissingBlocks;
  std::set<Integer> MissingBitmaps;
  std::set<Integer> MissingIcons;
  std::set<Integer> MissingStrings;
  std::optional<std::string> About;

 private:
  static void Require(const std::set<Integer>& missing, Integer identifier) {
    if (missing.count(identifier) != 0) {
      throw ResourceNotFoundError(identifier);
    }
  }
  EmbeddedResources whole_;
};

/// The main form in a world of its own, with openers that note what they were asked for.
class Desk {
 public:
  explicit Desk(const NumberLocale& locale = PointLocale()) { Outside.Locale = locale; }

  /// Makes the form of this world as it now is, without loading it.
  frmMain& Make() {
    form_ = std::make_unique<frmMain>(Outside.Bundle(), RecordingOpeners());
    return *form_;
  }
  frmMain& MakeAndLoad() {
    Make().Form_Load();
    return *form_;
  }

  /// The messages shown since the last call.
  std::vector<Message> TakeMessages() { return std::exchange(Outside.Messages.Shown, {}); }

  PartialResources Resources;
  World Outside{Resources};
  std::vector<ResultLists> Results;
  std::vector<std::string> Opened;
  std::vector<SelectionProposal> Proposals;
  /// Whether the user takes a proposal.
  bool TakesProposals = false;
  /// What the drawings are to be made from, a report each.
  std::vector<Calculation> Snapshots;
  /// The pieces of the last report.
  std::vector<ReportPiece> Report;
  /// Whether the form was to be seen while the last window was open.
  bool VisibleMeanwhile = false;

 private:
  frmMain::Openers RecordingOpeners() {
    const auto note = [this](std::string window) {
      return [this, window = std::move(window)] {
        Opened.push_back(window);
        VisibleMeanwhile = form_->Form.Visible();
      };
    };
    return {.ShowKoeffOfUse = [this](const ResultLists& lists) { Results.push_back(lists); },
            .ShowDataManager = note("DataManager"),
            .ShowParamerty = note("Paramerty"),
            .ShowSteel = note("Steel"),
            .ShowAbout = note("About"),
            .ShowSearch =
                [this](const SelectionOffer& offer) {
                  Opened.push_back("Search");
                  Proposals.push_back(offer.Proposal);
                  return TakesProposals ? std::optional(offer.Proposal) : std::nullopt;
                },
            .BeginOtchet =
                [this](const Calculation& snapshot) {
                  Snapshots.push_back(snapshot);
                  Report.clear();
                },
            .AppendOtchet = [this](const ReportPiece& piece) { Report.push_back(piece); },
            .ShowOtchet = note("Otchet"),
            .EndProgram = note("End")};
  }

  std::unique_ptr<frmMain> form_;
};

/// A desk with the form as it is after the start.
class StartedDesk : public Desk {
 public:
  explicit StartedDesk(const NumberLocale& locale = PointLocale())
      : Desk(locale), Main(MakeAndLoad()) {}
  frmMain& Main;
};

/// What the common tail shows.
inline Message Tail(const std::string& title, int number, const std::string& description) {
  return {title, " Err # " + std::to_string(number) + " Discription : " + description,
          MessageStyle::Critical};
}

inline Message TypeMismatchTail(const std::string& title) {
  return Tail(title, 13, "Type mismatch");
}

inline Message SubscriptTail(const std::string& title) {
  return Tail(title, 9, "Subscript out of range");
}

inline Message BitmapTail(const std::string& title, int identifier) {
  return Tail(title, 326,
              "Resource with identifier '" + std::to_string(identifier) + "' not found");
}

using Messages = std::vector<Message>;

constexpr const char* formTitle = "Трелонит v 1.0.0 (alpha)";
constexpr const char* debugFormTitle = "Трелонит v 1.0.0 (alpha) отладка";

inline Message Stop(const std::string& text) {
  return {formTitle, text, MessageStyle::Critical};
}

inline Message Hint(const std::string& text) {
  return {formTitle, text, MessageStyle::Information};
}

/// What a user does with a list: only what stands in it can be chosen.
inline void Choose(ComboBox& box, const std::string& text) {
  if (std::find(box.List().begin(), box.List().end(), text) == box.List().end()) {
    throw std::logic_error("not in the list: " + text);
  }
  box.SetText(text);
}

inline std::vector<double> Zeros(std::size_t count) {
  return std::vector<double>(count, 0.0);
}

/// "first, first + step, ... last" as texts.
inline std::vector<std::string> Numbers(int first, int last, int step = 1) {
  std::vector<std::string> texts;
  for (int number = first; number <= last; number += step) {
    texts.push_back(std::to_string(number));
  }
  return texts;
}

inline Picture BitmapOf(Integer identifier) {
  return {Picture::Source::Bitmap, identifier};
}

/// Numbers of the marked pictures of a row.
inline std::vector<Long> MarkedOf(const BoundedArray<Image>& row) {
  std::vector<Long> marked;
  for (Long number = row.LowerBound(); number <= row.UpperBound(); ++number) {
    if (row[number].Marked()) {
      marked.push_back(number);
    }
  }
  return marked;
}

/// Name of a standard and of one of its sizes as the lists show them.
inline std::string StandardName(const frmMain& form, Long standard) {
  return form.Model.ProfileTypes[standard].Name.Trimmed();
}
inline std::string SizeName(const frmMain& form, Long standard, Long size) {
  return form.Model.ProfileTypes[standard].Rec[size].Name.Trimmed();
}

/// Adds a load by the inputs as they stand: joint or panel k, force as typed.
inline void AddForce(frmMain& form, int k, const std::string& force) {
  Choose(form.cmbKnotNum, std::to_string(k));
  form.txtForceVal.SetText(force);
  form.cmdAddForce_Click();
}

}  // namespace test
}  // namespace trelonit
