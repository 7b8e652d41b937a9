#include "apps/cli/VariantSink.h"

#include <iostream>
#include <utility>
#include <vector>

#include "apps/cli/JsonText.h"
#include "apps/cli/OutputFile.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/Files.h"
#include "variants/BestVariants.h"
#include "variants/Refusal.h"
#include "variants/VariantPlot.h"
#include "variants/VariantTable.h"

namespace trelonit::cli {

namespace {

/// Bytes on their way out: a file that grows beside its target, or standard output.
class Out {
 public:
  explicit Out(const std::string& output) {
    if (output != "-") {
      Try([&] { file_ = DiskFiles().BeginFile(output); });
    }
  }
  void Append(const std::string& bytes) {
    // Rows are short, and each write of a file is a call of the system.
    constexpr std::size_t enough = 1 << 16;
    waiting_ += bytes;
    if (waiting_.size() >= enough) {
      Write();
    }
  }
  void Finish() {
    Write();
    if (file_) {
      Try([&] { file_->Finish(); });
    }
  }

 private:
  void Write() {
    if (file_) {
      Try([&] { file_->Append(waiting_); });
    } else if (!(std::cout << waiting_ << std::flush)) {
      throw OutputFailure{"стандартный вывод закрыт"};
    }
    waiting_.clear();
  }
  template <class Body>
  static void Try(Body&& body) {
    try {
      std::forward<Body>(body)();
    } catch (const RuntimeError& error) {
      throw OutputFailure{error.Description()};
    }
  }

  std::unique_ptr<GrowingFile> file_;
  std::string waiting_;
};

class CsvSink : public VariantSink {
 public:
  CsvSink(const std::string& output, bool withHead) : out_(output) {
    if (withHead) {
      out_.Append(CsvRow(VariantColumns()));
    }
  }
  void Take(const Variant& variant) override { out_.Append(CsvRow(VariantFields(variant))); }
  void Finish() override { out_.Finish(); }

 private:
  Out out_;
};

/// An array of objects, one a line.
class JsonSink : public VariantSink {
 public:
  explicit JsonSink(const std::string& output) : out_(output) { out_.Append("["); }
  void Take(const Variant& variant) override {
    const DesignInputs& inputs = variant.Inputs;
    OrderedJson sections = OrderedJson::array();
    for (const SectionRec& section : inputs.ElementSection) {
      sections.push_back({{"Layout", section.Layout},
                          {"TypeIdx", section.TypeIdx},
                          {"SizeIdx", section.SizeIdx},
                          {"Name", section.Profile.Name.Trimmed()},
                          {"Gdist", section.Gdist}});
    }
    const OrderedJson object{
        {"Number", variant.Number + 1},  {"TreloType", inputs.TreloType},
        {"LengthF", inputs.LengthF},     {"Hight", inputs.Hight},
        {"LenOporn", inputs.LenOporn},   {"PanelNum", inputs.PanelNum},
        {"SteelName", inputs.SteelName}, {"Ry", inputs.Ry},
        {"ElementSection", sections},    {"Use", variant.Use},
        {"Mass", variant.Mass},          {"Progib", variant.Progib},
        {"Rounds", variant.Rounds},      {"Verdict", VerdictName(variant.Verdict)},
        {"Reason", variant.Reason}};
    out_.Append(between_ + object.dump(-1, ' ', false, OrderedJson::error_handler_t::replace));
    between_ = ",\n";
  }
  void Finish() override {
    out_.Append("\n]\n");
    out_.Finish();
  }

 private:
  Out out_;
  std::string between_ = "\n";
};

class PlotSink : public VariantSink {
 public:
  explicit PlotSink(const std::string& output) : out_(output) {}
  void Take(const Variant& variant) override {
    // Nobody sees more of them, and a picture is held whole.
    constexpr std::size_t mostPoints = 200'000;
    if (variant.Verdict != VariantVerdict::Passes) {
      return;
    }
    if (points_.size() == mostPoints) {
      throw OutputFailure{"на рисунке больше 200 000 точек"};
    }
    points_.push_back(PointOf(variant));
    front_.Take(variant);
  }
  void Finish() override {
    std::vector<PlotPoint> marked;
    for (const Variant& variant : front_.Kept()) {
      marked.push_back(PointOf(variant));
    }
    out_.Append(PlotAsSvg(points_, marked));
    out_.Finish();
  }

 private:
  Out out_;
  std::vector<PlotPoint> points_;
  VariantFront front_{HeightOf};
};

}  // namespace

std::unique_ptr<VariantSink> MakeSink(const std::string& output, bool withHead) {
  if (output == "-" || HasExtension(output, ".csv")) {
    return std::make_unique<CsvSink>(output, withHead);
  }
  if (HasExtension(output, ".json")) {
    return std::make_unique<JsonSink>(output);
  }
  if (HasExtension(output, ".svg")) {
    return std::make_unique<PlotSink>(output);
  }
  Refuse("файл «" + output + "»: варианты записываются в .csv, .json, .svg");
}

}  // namespace trelonit::cli
