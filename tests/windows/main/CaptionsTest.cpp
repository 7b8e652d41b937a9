#include <gtest/gtest.h>
#include <map>

#include "tests/windows/main/Screen.h"

namespace trelonit::test {
namespace {

/// A caption without the marks of its access keys.
std::string WithoutMnemonics(QString caption) {
  return FromQt(caption.remove(QLatin1Char('&')));
}

class Captions : public ::testing::Test, public Screen {
 protected:
  std::string HintOf(const std::string& name) {
    return FromQt(Find<QWidget>(Window, name).toolTip());
  }
  /// The caption of the label that leads to this input.
  std::string LabelOf(const std::string& name) {
    for (const QLabel* label : Window.findChildren<QLabel*>()) {
      if (label->buddy() != nullptr && FromQt(label->buddy()->objectName()) == name) {
        return WithoutMnemonics(label->text());
      }
    }
    return {};
  }
  bool HasGroup(const std::string& title) {
    for (const QGroupBox* box : Window.findChildren<QGroupBox*>()) {
      if (FromQt(box->title()) == title) {
        return true;
      }
    }
    return false;
  }
};

TEST_F(Captions, OfTheTabs) {
  ASSERT_EQ(Tabs().count(), 3);
  EXPECT_EQ(FromQt(Tabs().tabText(0)), "Параметры фермы");
  EXPECT_EQ(FromQt(Tabs().tabText(1)), "Сечение элементов");
  EXPECT_EQ(FromQt(Tabs().tabText(2)), "Вычислить");
}

TEST_F(Captions, StandBesideTheInputs) {
  const std::map<std::string, std::string> exact{
      {"cmbPanelNum", "Кол-во панелей фермы"},
      {"cmbKatalog", "Каталог металлопроката"},
      {"cmbTypeProfile", "Тип и стандарт металлопроката"},
      {"cmbSectType", "Типоразмер металлопроката"},
      {"cmbKnotNum", "Номер узла/панели - k"},
  };
  for (const auto& [name, caption] : exact) {
    EXPECT_EQ(LabelOf(name), caption);
  }
  // These tell the unit as well.
  const std::map<std::string, std::string> beginnings{
      {"txtLengthF", "Длинна фермы"},
      {"txtHight", "Высота фермы"},
      {"txtForceVal", "Величина усилия"},
  };
  for (const auto& [name, caption] : beginnings) {
    EXPECT_EQ(LabelOf(name).substr(0, caption.size()), caption);
  }
  EXPECT_TRUE(HasGroup("Схема нагружения поясов фермы"));
}

TEST_F(Captions, TheUnitOfTheForceFollowsTheTool) {
  EXPECT_EQ(LabelOf("txtForceVal"), "Величина усилия, тонн");
  Main.imgDistForce_Click();
  EXPECT_EQ(LabelOf("txtForceVal"), "Величина усилия, тонн/м");
  Main.imgPForce_Click();
  EXPECT_EQ(LabelOf("txtForceVal"), "Величина усилия, тонн");
}

TEST_F(Captions, StandOnTheButtons) {
  const std::map<std::string, std::string> expected{
      {"chkProgib", "По прогибу   max"},
      {"optBP", "Верхний пояс"},
      {"optNP", "Нижний пояс"},
      {"chkAllPanels", "На все панели"},
      {"cmdAddForce", "Добавить загружение"},
      {"cmdClearLoads", "Очистить все загружения"},
      {"chkDinloadEnable", "Наличае динамических нагрузок"},
      {"cmdCalculate", "Вычислить"},
      {"cmdCalcAndSelect", "Подобрать ..."},
      {"optElementSection1", "Верхний пояс"},
      {"optElementSection2", "Нижний пояс"},
      {"optElementSection3", "Раскосы"},
      {"optElementSection4", "Стойки"},
      {"optElementSection5", "Опорные раскосы"},
  };
  for (const auto& [name, caption] : expected) {
    EXPECT_EQ(WithoutMnemonics(Button(name).text()), caption) << name;
  }
}

TEST_F(Captions, OfTheBracingStandInTheirOrder) {
  const std::vector<std::string> captions{"Только крайние", "Крайние и посредине пролета",
                                          "Через один", "Все узлы"};
  std::vector<std::string> shown;
  for (const QAbstractButton* button : Window.findChildren<QAbstractButton*>()) {
    if (button->accessibleName().contains(ToQt("закреплен"))) {
      shown.push_back(FromQt(button->text()));
    }
  }
  std::vector<std::string> twice = captions;
  twice.insert(twice.end(), captions.begin(), captions.end());
  EXPECT_EQ(shown, twice);
}

TEST_F(Captions, HintsTellWhatTheInputsAre) {
  const std::map<std::string, std::string> expected{
      {"imgTreloType1", "Первый тип фермы опирание по нижнему поясу"},
      {"imgTreloType2", "Второй тип фермы опирание по верхнему поясу"},
      {"imgTreloType3", "Третий тип фермы опирание по верхнему поясу"},
      {"imgTreloType4", "Четвертый тип фермы опирание по верхнему поясу"},
      // What is not calculated yet says so.
      {"imgTreloType5",
       "Пятый тип фермы опирание по нижнему поясу\nСхема 5 пока не рассчитывается"},
      {"imgTreloType6", "Схема 6 пока не рассчитывается"},
      {"imgTreloType10", "Схема 10 пока не рассчитывается"},
      {"txtLenOporn",
       "Длинна крайних опорных панелей. Если не задано, то полагаются все панели равной длинны !"},
      {"optBP", "Прогиб считать по Верхнему поясу"},
      {"optNP", "Прогиб считать по Нижнему поясу"},
      {"txtProgib", "Наибольший прогиб фермы. Отображается после выполнения расчета!"},
      {"Hopt", "Отображает оптимальную высоту фермы"},
      {"cmbGdist",
       "Растояние между спаренными профилями - Не ограничивается програмой !!! Контролируйте "
       "правильность выбора!"},
      {"imgPForce", "Сосредоточенное узловое усилие"},
      {"imgDistForce", "Распределенное усилие на панели пояса"},
      {"tglUpPoyas", "Переключиться к верхнему поясу"},
      {"tglDwnPoyas", "Переключиться к нижнему поясу"},
      {"chkOwnWeight", "Учитывать собственный вес при расчете усилий в стержнях."},
      {"chkDinloadEnable", "Оказывает влияние на проверку гибкости растянутых элементов"},
  };
  for (const auto& [name, hint] : expected) {
    EXPECT_EQ(HintOf(name), hint) << name;
  }
  for (int option = 1; option <= 5; ++option) {
    EXPECT_EQ(HintOf("optElementSection" + std::to_string(option)),
              "Выбор текущей группы конструктивных элементов.");
  }
  EXPECT_EQ(HintOf("imgProfileSecSelect4"),
            "Для неравнополочных уголков длинная полка располагается в плоскости фермы !!");
}

TEST_F(Captions, TheHintsOfTheBracingBeginWithWhatItBears) {
  for (const auto& [chord, hint] : std::map<std::string, std::string>{
           {"Верхний пояс", "Влияет на устойчивость верхнего пояса из плоскости фермы"},
           {"Нижний пояс", "Влияет на устойчивость нижнего пояса из плоскости фермы"}}) {
    int found = 0;
    for (const QAbstractButton* button : Window.findChildren<QAbstractButton*>()) {
      if (button->accessibleName().startsWith(ToQt(chord + " закреплен"))) {
        ++found;
        EXPECT_EQ(FromQt(button->toolTip().section(QLatin1Char('\n'), 0, 0)), hint);
      }
    }
    EXPECT_EQ(found, 4);
  }
}

TEST_F(Captions, HintsAreReadAloud) {
  for (const char* name : {"txtLenOporn", "optBP", "optNP", "txtProgib", "cmbGdist", "tglUpPoyas",
                           "tglDwnPoyas", "chkOwnWeight", "chkDinloadEnable", "Hopt"}) {
    const auto& widget = Find<QWidget>(Window, name);
    EXPECT_EQ(FromQt(widget.accessibleDescription()), FromQt(widget.toolTip())) << name;
  }
}

TEST_F(Captions, OfTheMenusStandInTheirOrder) {
  std::vector<std::string> lines;
  for (const QAction* top : Window.menuBar()->actions()) {
    // This one stands beside the form's own.
    if (top->menu()->objectName() == QLatin1String("Edit")) {
      continue;
    }
    lines.push_back(FromQt(top->text()));
    for (const QAction* item : top->menu()->actions()) {
      // The key stands in a column of its own.
      lines.push_back("  " + FromQt(item->objectName()) + " \"" +
                      FromQt(item->text().replace(QLatin1Char('\t'), QLatin1Char(' '))) + "\"");
    }
  }
  const std::vector<std::string> expected{"&Файл",
                                          "  SaveParam \"Сохранить\"",
                                          "  Restore \"Восстановить\"",
                                          "  Exit \"Выход Alt+F4\"",
                                          "Расчет",
                                          "  mnuCalc \"Вычислить\"",
                                          "  mnuSearch \"Подобрать ...\"",
                                          "  mnuOtchet \"Отчет расчета ...\"",
                                          "База данных",
                                          "  mnuProfile \"Профильный прокат...\"",
                                          "&Параметры",
                                          "  optio \"Па&раметры стали\"",
                                          "&Помощь",
                                          "  About \"&О программе...\"",
                                          "  UserHelp \"Справка\"",
                                          "Вид",
                                          "  mnuLiveStrip \"Живой расчет\""};
  EXPECT_EQ(lines, expected);
}

TEST_F(Captions, AccessKeysAreUniqueOnEachTab) {
  for (int tab = 0; tab < 3; ++tab) {
    std::map<QString, std::string> keys;
    const auto take = [&](const QString& caption) {
      const qsizetype mark = caption.indexOf(QLatin1Char('&'));
      if (mark < 0) {
        return;
      }
      const QString key = caption.mid(mark + 1, 1).toUpper();
      const auto [place, added] = keys.emplace(key, FromQt(caption));
      EXPECT_TRUE(added) << place->second << " and " << FromQt(caption) << " on tab " << tab;
    };
    // Two menus share a letter, as their captions have it; no input may take it from them.
    for (const QAction* menu : Window.menuBar()->actions()) {
      const qsizetype mark = menu->text().indexOf(QLatin1Char('&'));
      if (mark >= 0) {
        keys.emplace(menu->text().mid(mark + 1, 1).toUpper(), FromQt(menu->text()));
      }
    }
    for (const QAbstractButton* button : Tabs().widget(tab)->findChildren<QAbstractButton*>()) {
      take(button->text());
    }
    for (const QLabel* label : Tabs().widget(tab)->findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) {
        take(label->text());
      }
    }
  }
}

}  // namespace
}  // namespace trelonit::test
