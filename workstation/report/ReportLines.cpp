#include "workstation/report/ReportLines.h"

#include <string_view>

#include "analysis/Scheme.h"
#include "platform/values/Arithmetic.h"
#include "workstation/report/ReportWriter.h"

namespace trelonit {

namespace {

std::string BracingLine(const std::string& chord, Integer brace) {
  switch (brace) {
    case 1:
      return chord + " только по краям ";
    case 2:
      return chord + " по средине и по краям ";
    case 3:
      return chord + " через один узел ";
    case 4:
      return chord + " во всех узлах ";
    default:
      return {};
  }
}

std::string LayoutLine(Long layout) {
  switch (layout) {
    case 1:
      return "Компоновка сечения - уголок одиночный ";
    case 2:
    case 3:
      return "Компоновка сечения - уголок спаренный в тавровое сечение ";
    case 4:
      return "Компоновка сечения - уголок спаренный в крестообразное сечение ";
    case 5:
      return "Компоновка сечения - швеллер прокатный ";
    case 6:
      return "Компоновка сечения - двутавр прокатный ";
    case 7:
      return "Компоновка сечения - тавр прокатный ";
    case 8:
      return "Компоновка сечения - Швеллер спаренный в двутавр ";
    case 9:
    case 10:
      return "Компоновка сечения - труба прямоугольная ";
    case 11:
      return "Компоновка сечения - труба круглая ";
    default:
      return {};
  }
}

bool HasGap(Long layout) {
  return layout == 2 || layout == 3 || layout == 4 || layout == 8;
}

class Report {
 public:
  Report(const Calculation& calculation, const ReportInputs& inputs, const NumberLocale& locale,
         const ReportSink& sink)
      : calculation_(calculation), inputs_(inputs), out_(locale, sink) {}

  void Write() {
    WriteInput();
    WriteMaterial();
    WriteSections();
    WriteLoads();
    WriteForces();
    WriteUtilisation();
    WriteReactions();
  }

 private:
  bool HasVerticals() const { return trelonit::HasVerticals(calculation_.TreloData.TreloType); }

  void WriteInput() {
    const TreloData& data = calculation_.TreloData;
    out_.Heading("Расчет фермы");
    out_.Heading("Входные данные :");
    out_.Line("Тип расчетной схемы № " + std::to_string(data.TreloType));
    out_.Value("Длинна фермы - ", data.LengthF);
    out_.Value("Высота фермы - ", data.Hight);
    out_.Value("Длинна опорных панелей фермы - ", data.LenOporn);
    out_.Words("Количество напелей верхнего пояса - ", std::to_string(data.PanelNum));
    out_.Heading("Раскрепление поясов фермы : ");
    WriteBracing("Верхний пояс", data.UpPoyasBrace);
    WriteBracing("Нижний пояс", data.DownPoyasBrace);
  }

  void WriteBracing(const std::string& chord, Integer brace) {
    if (const std::string line = BracingLine(chord, brace); !line.empty()) {
      out_.Line(line);
    }
  }

  void WriteMaterial() {
    out_.Heading("Материал фермы : ");
    out_.Line(inputs_.SteelName);
    out_.Value("Расчетное сопротивление стали Ry = ", calculation_.Numbers.Ry);
    out_.Value("Коэффициент надежности по ответственности Gn = ", calculation_.Numbers.Gn);
    out_.Value("Коэффициент условий работы Yc = ", calculation_.Numbers.Yc);
    out_.Value("Плотность материала p = ", calculation_.Numbers.Density);
    out_.Value("Предельная гибкость сжатого элемента, заданая пользователем Flim = ",
               calculation_.Numbers.LimitUser);
    if (inputs_.ProgibOn) {
      out_.Words("Предельно допустимый прогиб = ", "L * " + inputs_.LenLim);
      out_.Line(inputs_.ProgibUpper ? "Расчет прогиба по верхнему поясу "
                                    : "Расчет прогиба по нижнему поясу ");
    }
  }

  void WriteSections() {
    out_.Heading("Cечение стержней фермы : ");
    const CheckResult& check = calculation_.CheckData;
    WriteSection("Верхний пояс : ", sectionUpPoyas, check.UpPoyas);
    WriteSection("Нижний пояс : ", sectionDwnPoyas, check.DwnPoyas);
    WriteSection("Раскосы : ", sectionRaskos, check.Raskos);
    WriteSection("Опорные раскосы : ", sectionOpornRaskos, check.OpornRaskos);
    if (HasVerticals()) {
      WriteSection("Стойки : ", sectionStoyka, check.Stoyka);
    }
  }

  void WriteSection(const std::string& title, SectionPlace place, const GroupCheck& check) {
    const SectionRec& section = calculation_.ElementSection[place];
    out_.Title(title);
    out_.Line("Тип металлопроката " + section.Profile.Type.Padded());
    out_.Line("Типоразмер металлопроката " + section.Profile.Name.Padded());
    if (const std::string layout = LayoutLine(section.Layout); !layout.empty()) {
      out_.Line(layout);
    }
    if (HasGap(section.Layout)) {
      out_.Value("Расстояние между спаренными профелями : ", section.Gdist, " мм");
    }
    // The first letter of the units is a Latin c.
    out_.Value("Площадь сечения : ", check.Area, " cм^2");
    out_.Value("Момент инерции относительно горизонтальной оси : ", check.Jin, " cм^4");
    out_.Value("Момент инерции относительно вертикальной оси : ", check.Jout, " cм^4");
  }

  void WriteLoads() {
    const LoadArrays& loads = calculation_.TreloData;
    out_.Heading("Загружения на ферму : ");
    WriteLoadRows("Загружения на узлы верхнего пояса с лева на право : ", " узел № ",
                  loads.UpPForce);
    WriteLoadRows("Загружения на панели верхнего пояса с лева на право : ", " панель № ",
                  loads.UpDistForce);
    WriteLoadRows("Загружения на узлы нижнего пояса с лева на право : ", " узел № ",
                  loads.DwnPForce);
    WriteLoadRows("Загружения на панели нижнего пояса с лева на право : ", " панель № ",
                  loads.DwnDistForce);
    out_.Line(calculation_.Numbers.Dynamic ? "Учет динамических нагрузок включен "
                                           : "Учет динамических нагрузок отключен ");
  }

  void WriteLoadRows(const std::string& heading, const std::string& place,
                     const BoundedArray<double>& loads) {
    out_.Heading(heading);
    // All rows go in at once, zeros too.
    ReportSpans rows;
    for (Long number = loads.LowerBound(); number <= loads.UpperBound(); ++number) {
      out_.AddValue(rows, place + std::to_string(number) + " , приложенное усилие : ",
                    out_.Number(loads[number]), " тонн ");
    }
    out_.Rows(std::move(rows));
  }

  void WriteForces() {
    const TreloResult& result = calculation_.TreloResult;
    out_.Heading("Результаты расчета фермы : ");
    out_.Heading("Усилия в стержнях : ");
    out_.Line("Усилия записаны для каждой группы стержней слева на право ");
    WriteForceRows("Верхний пояс : ", result.UpPoyasForce);
    WriteForceRows("Нижний пояс : ", result.DwnPoyasForce);
    WriteForceRows("Раскосы : ", result.RaskosForce);
    out_.Line("Примечание: Тут первый и последний раскосы - опорные");
    if (HasVerticals()) {
      WriteForceRows("Стойки : ", result.StoykaForce);
    }
  }

  void WriteForceRows(const std::string& title, const BoundedArray<double>& forces) {
    out_.Title(title);
    for (Long bar = forces.LowerBound(); bar <= forces.UpperBound(); ++bar) {
      // A Latin C begins the row.
      out_.Value(" Cтержень № " + std::to_string(bar) + " , усилие : ", forces[bar], " тонн ");
    }
  }

  void WriteUtilisation() {
    const CheckResult& check = calculation_.CheckData;
    out_.Heading("Коэффициенты использования : ");
    WriteCoefficients("*** Верхний пояс : ", check.UpPoyas);
    WriteCoefficients("*** Нижний пояс : ", check.DwnPoyas);
    WriteCoefficients("*** Опорные раскосы : ", check.OpornRaskos);
    WriteCoefficients("*** Раскосы : ", check.Raskos);
    if (HasVerticals()) {
      WriteCoefficients("*** Cтойки : ", check.Stoyka);
    }
  }

  void WriteCoefficients(const std::string& title, const GroupCheck& check) {
    out_.Title(title);
    // A coefficient of 0 was not asked for and has no line.
    const auto above0 = [this](const std::string& text, double value) {
      if (value > 1) {
        out_.WarningValue(text, value);
      } else if (value > 0) {
        out_.Value(text, value);
      }
    };
    above0("Прочность : ", check.KStrength);
    above0("Устойчивость в плоскости фермы : ", check.KStabX);
    above0("Устойчивость из плоскости фермы : ", check.KStabY);
    above0("Гибкость в плоскости фермы : ", check.KFlexX);
    above0("Гибкость из плоскости фермы : ", check.KFlexY);
    above0("Гибкость по предельной гибкости, заданной пользователем в плоскости фермы : ",
           check.KUserX);
    above0("Гибкость по предельной гибкости, заданной пользователем из плоскости фермы : ",
           check.KUserY);
  }

  void WriteReactions() {
    const TreloResult& result = calculation_.TreloResult;
    const Real mass = calculation_.CheckData.Mass;
    out_.Heading("Реакции опор, масса фермы : ");
    out_.Value("Теоретическая масса профильного проката фермы : ", mass);
    out_.Value("Реакция левой опоры фермы : ", result.ReactLeft);
    out_.Value("Реакция правой опоры фермы : ", result.ReactRight);
    // Intended: half the mass is added as it stands, also when own weight is among the loads.
    out_.Value("Реакция левой опоры фермы с учетом масы фермы : ",
               mass / 2 + Real(result.ReactLeft));
    out_.Value("Реакция правой опоры фермы с учетом масы фермы : ",
               mass / 2 + Real(result.ReactRight));
  }

  const Calculation& calculation_;
  const ReportInputs& inputs_;
  ReportWriter out_;
};

/// A group with the words that its lines use, and which of its limits counts in tension.
struct SlendernessWords {
  std::string_view Words;
  const GroupCheck& Check;
  double LimitFlex::*Tension;
};

void WriteSlenderness(ReportWriter& out, const SlendernessWords& group) {
  const std::string words(group.Words);
  const GroupCheck& check = group.Check;
  out.Five("Гибкость " + words + " в плоскости фермы : ", check.FlexX);
  out.Five("Гибкость " + words + " из плоскости фермы : ", check.FlexY);
  const auto limits = [&](const std::string& plane, const LimitFlex& limit) {
    const std::string begin = "Предельная гибкость " + words + " " + plane + " плоскости фермы ";
    out.Five(begin + "для случая сжатия : ", limit.Compress);
    out.Five(begin + "для случая растяжения : ", limit.*group.Tension);
  };
  limits("в", check.LimitX);
  limits("из", check.LimitY);
}

}  // namespace

std::string ReportPiece::Text() const {
  std::string text;
  for (const ReportSpan& span : Spans) {
    text += span.Text;
  }
  return text;
}

void WriteReport(const Calculation& calculation, const ReportInputs& inputs,
                 const NumberLocale& locale, const ReportSink& sink) {
  Report(calculation, inputs, locale, sink).Write();
}

void WriteReportProgib(const ProgibResult& progib, const NumberLocale& locale,
                       const ReportSink& sink) {
  ReportWriter out(locale, sink);
  out.SpacedHeading("Результаты расчета прогиба : ");
  if (!progib.Satisfied) {
    out.Warning("Не выполнено условие жесткости !!! ");
  }
  out.Five(progib.Satisfied ? "Максимальный прогиб : " : "Максимальный прогиб фермы : ",
           progib.Value, " м ");
  out.Five("Допустимый прогиб фермы : ", progib.Limit, " м ");
}

void WriteReportAdditional(const Calculation& calculation, const NumberLocale& locale,
                           const ReportSink& sink) {
  ReportWriter out(locale, sink);
  const TreloResult& result = calculation.TreloResult;
  const CheckResult& check = calculation.CheckData;
  const bool verticals = HasVerticals(calculation.TreloData.TreloType);
  out.Line("  ");
  out.SpacedHeading("Дополнительная информация : ");
  out.Line("  ");
  out.Five("Угол наклона опорного раскоса : ", result.AngleOporn, " рад ");
  out.Five("Угол наклона раскосов : ", result.AngleRaskos, " рад ");
  out.Five("Длинна опорных раскосов : ", result.LenOpornRaskos, " м ");
  out.Five("Длинна раскосов : ", result.LenRaskos, " м ");
  const auto lengths = [&](const std::string& bar, const GroupCheck& group) {
    out.Five("Длинна стержня " + bar + " в плоскости фермы : ", group.LenX, " м ");
    out.Five("Длинна стержня " + bar + " из плоскости фермы  : ", group.LenY, " м ");
  };
  lengths("верхнего пояса", check.UpPoyas);
  lengths("нижнего пояса", check.DwnPoyas);
  lengths("опорного раскоса", check.OpornRaskos);
  lengths("раскоса", check.Raskos);
  if (verticals) {
    lengths("стойки", check.Stoyka);
  }
  // Intended: diagonals and verticals show their second limit in tension, the others the first.
  WriteSlenderness(out, {"верхнего пояса", check.UpPoyas, &LimitFlex::Tension});
  WriteSlenderness(out, {"нижнего пояса", check.DwnPoyas, &LimitFlex::Tension});
  WriteSlenderness(out, {"раскосов", check.Raskos, &LimitFlex::Tension2});
  WriteSlenderness(out, {"опорных раскосов", check.OpornRaskos, &LimitFlex::Tension});
  if (verticals) {
    WriteSlenderness(out, {"стойки", check.Stoyka, &LimitFlex::Tension2});
  }
}

}  // namespace trelonit
