#include "apps/cli/CommandLine.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <iostream>
#include <sstream>

#include "apps/cli/Commands.h"

namespace trelonit::cli {

namespace {

/// The library's own words for the user, in Russian.
void Translate(CLI::App& app) {
  auto formatter = std::make_shared<CLI::Formatter>();
  formatter->label("Usage", "Использование");
  formatter->label("OPTIONS", "КЛЮЧИ");
  formatter->label("SUBCOMMAND", "КОМАНДА");
  formatter->label("SUBCOMMANDS", "КОМАНДЫ");
  formatter->label("Positionals", "Аргументы");
  formatter->label("Options", "Ключи");
  formatter->label("Subcommands", "Команды");
  formatter->label("REQUIRED", "");
  formatter->label("Needs", "только вместе с");
  formatter->label("TEXT", "ТЕКСТ");
  formatter->column_width(28);
  app.formatter(formatter);
  app.option_defaults()->group("Ключи");
  app.set_help_flag("-h,--help", "показать эту справку");
}

/// The part of the library's sentence before this word: the name that the sentence is about.
std::string NameBefore(const std::string& sentence, const std::string& word) {
  return sentence.substr(0, sentence.find(word));
}

/// What is wrong with the command line.
std::string Explain(const CLI::App& app, const CLI::ParseError& error) {
  const std::string sentence = error.what();
  const auto extras = app.remaining(true);
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr && !extras.empty()) {
    return "лишний или неизвестный аргумент «" + extras.front() + "»";
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    if (sentence.find("subcommand") == std::string::npos) {
      return "не указан аргумент «" + NameBefore(sentence, " is required") + "»";
    }
    if (extras.empty()) {
      return "не указана команда";
    }
    return (extras.front().starts_with('-') ? "неизвестный ключ «" : "неизвестная команда «") +
           extras.front() + "»";
  }
  if (dynamic_cast<const CLI::RequiresError*>(&error) != nullptr) {
    return "ключ «" + NameBefore(sentence, " requires ") + "» не имеет смысла без «--json»";
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    return "у ключа «" + NameBefore(sentence, ":") + "» неверное число значений";
  }
  if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) {
    const std::string name = NameBefore(sentence, " = ");
    return "у ключа «" + name.substr(name.rfind(' ') + 1) + "» неверное значение";
  }
  return "неверная командная строка (" + sentence + ")";
}

constexpr const char* version = "trelonit-cli " TRELONIT_VERSION;

CLI::App* AddCommand(CLI::App& parent, const std::string& name, const std::string& description) {
  CLI::App* command = parent.add_subcommand(name, description);
  Translate(*command);
  command->group("Команды");
  command->set_version_flag("--version", version, "показать версию");
  return command;
}

}  // namespace

Status RunCommandLine(int argc, const char* const* argv, const Paper& paper) {
  CLI::App app("Расчёт плоских статически определимых стальных стропильных ферм", "trelonit-cli");
  Translate(app);
  // The same on every system: "/folder/file" is a name, not an option.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", version, "показать версию");
  app.require_subcommand(1);

  std::function<Status()> run;

  NewOptions newOptions;
  CLI::App* create = AddCommand(app, "new", "новый проект с исходными данными по умолчанию");
  create->add_option("-o,--output", newOptions.Output, "файл проекта (.tsav)")
      ->required()
      ->type_name("FILE");
  create->add_flag("-f,--force", newOptions.Force, "заменить существующий файл");
  create->callback([&] { run = [&] { return RunNew(newOptions); }; });

  CalcOptions calcOptions;
  CLI::App* calc = AddCommand(app, "calc", "расчёт проекта: усилия и коэффициенты использования");
  calc->add_option("FILE", calcOptions.Project, "файл проекта (.tsav)")->required()->type_name("");
  CLI::Option* json = calc->add_flag("--json", calcOptions.Json, "вывод в формате JSON");
  calc->add_flag("--bar-force", calcOptions.BarForce, "добавить в JSON таблицу BarForce")
      ->needs(json);
  calc->callback([&] { run = [&] { return RunCalc(calcOptions); }; });

  AuditOptions auditOptions;
  CLI::App* audit =
      AddCommand(app, "audit",
                 "второе мнение: замечания, коэффициенты расчёта рядом с коэффициентами по СНиП");
  audit->add_option("FILE", auditOptions.Project, "файл проекта (.tsav)")
      ->required()
      ->type_name("");
  audit->add_flag("--json", auditOptions.Json, "вывод в формате JSON");
  audit->add_flag("--strict", auditOptions.Strict, "код завершения 3, если есть опасное замечание");
  audit->callback([&] { run = [&] { return RunAudit(auditOptions); }; });

  SelectOptions selectOptions;
  CLI::App* select =
      AddCommand(app, "select", "автоматический подбор профилей и расчёт с подобранными");
  select->add_option("FILE", selectOptions.Project, "файл проекта (.tsav)")
      ->required()
      ->type_name("");
  select->add_option("-o,--output", selectOptions.Output, "сохранить подобранное как проект")
      ->type_name("FILE");
  select->add_flag("-f,--force", selectOptions.Force, "заменить существующий файл");
  select->add_flag("--json", selectOptions.Json, "вывод в формате JSON");
  select->add_flag("--opinion", selectOptions.Opinion,
                   "подбирать и по СНиП без отступлений, до неизменности собственного веса");
  select->callback([&] { run = [&] { return RunSelect(selectOptions); }; });

  ReportOptions reportOptions;
  CLI::App* report = AddCommand(app, "report", "отчёт расчёта");
  report->add_option("FILE", reportOptions.Project, "файл проекта (.tsav)")
      ->required()
      ->type_name("");
  report
      ->add_option("-o,--output", reportOptions.Output,
                   "файл отчёта: .txt, .rtf, .pdf, .html; «-» — стандартный вывод")
      ->required()
      ->type_name("FILE");
  report->add_flag("--appendix", reportOptions.Appendix,
                   "приложение: второе мнение и проверки с подстановкой");
  report->callback([&] { run = [&] { return RunReport(reportOptions, paper); }; });

  DrawOptions drawOptions;
  CLI::App* draw = AddCommand(app, "draw", "чертёж: схема усилий и геометрическая схема");
  draw->add_option("FILE", drawOptions.Project, "файл проекта (.tsav)")->required()->type_name("");
  draw->add_option("-o,--output", drawOptions.Output, "файл чертежа: .dxf, .svg, .pdf, .png")
      ->required()
      ->type_name("FILE");
  draw->callback([&] { run = [&] { return RunDraw(drawOptions, paper); }; });

  VariantsOptions variantsOptions;
  CLI::App* variants =
      AddCommand(app, "variants", "варианты проекта: какая ферма лучше, с подбором профилей");
  variants->add_option("FILE", variantsOptions.Project, "файл проекта (.tsav)")
      ->required()
      ->type_name("");
  variants
      ->add_option("-o,--output", variantsOptions.Output,
                   "таблица .csv или .json, рисунок .svg; «-» — стандартный вывод")
      ->required()
      ->type_name("FILE");
  const auto axis = [variants](const char* name, std::string& text, const char* description) {
    variants->add_option(name, text, description)->type_name("")->group("Оси: a,b,c или от:до:шаг");
  };
  axis("--scheme", variantsOptions.Scheme, "номера схем");
  axis("--span", variantsOptions.Span, "пролет, м");
  axis("--height", variantsOptions.Height, "высота, м");
  axis("--end", variantsOptions.EndPanel, "крайняя панель, м");
  axis("--panels", variantsOptions.Panels, "число панелей");
  axis("--upper", variantsOptions.Upper, "верхний пояс: расположение/сортамент");
  axis("--lower", variantsOptions.Lower, "нижний пояс");
  axis("--diagonals", variantsOptions.Diagonals, "раскосы");
  axis("--support-diagonals", variantsOptions.SupportDiagonals, "опорные раскосы");
  axis("--posts", variantsOptions.Posts, "стойки");
  axis("--gap", variantsOptions.Gap, "зазор парных профилей, мм");
  axis("--steel", variantsOptions.Steel, "сталь: марка:Ry, МПа");
  variants->add_option("--best", variantsOptions.Best, "только столько самых легких")
      ->type_name("N");
  variants
      ->add_option("--front", variantsOptions.Front,
                   "только лучшие по массе и высоте (height) или прогибу (progib)")
      ->type_name("");
  variants->add_option("--jobs", variantsOptions.Jobs, "потоков; без него — по числу ядер")
      ->type_name("N");
  variants->add_option("--shard", variantsOptions.Shard, "только часть K из N")->type_name("K/N");
  variants->add_flag("--opinion", variantsOptions.Opinion, "подбирать и по СНиП без отступлений");
  variants->callback([&] { run = [&] { return RunVariants(variantsOptions); }; });

  CLI::App* catalogue = AddCommand(app, "catalogue", "каталог проката");
  catalogue->require_subcommand(1);
  AddCommand(*catalogue, "list", "стандарты каталога")->callback([&] { run = RunCatalogueList; });
  CatalogueShowOptions showOptions;
  CLI::App* show = AddCommand(*catalogue, "show", "типоразмеры стандарта");
  show->add_option("STANDARD", showOptions.Standard, "номер или название стандарта")
      ->required()
      ->type_name("");
  show->add_option("SIZE", showOptions.Size, "обозначение типоразмера")->type_name("");
  show->callback([&] { run = [&] { return RunCatalogueShow(showOptions); }; });
  std::string verifyFile;
  CLI::App* verify =
      AddCommand(*catalogue, "verify", "проверка A, Jy, Jz каждого типоразмера по его размерам");
  verify->add_option("FILE", verifyFile, "файл базы данных проката; без него — сам каталог")
      ->type_name("");
  verify->callback([&] { run = [&] { return RunCatalogueVerify(verifyFile); }; });

  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& success) {
    std::ostringstream text;
    app.exit(success, text);
    return Print(text.str());
  } catch (const CLI::ParseError& error) {
    std::cerr << "trelonit-cli: " << Explain(app, error) << "; справка: trelonit-cli --help\n";
    return Status::WrongUsage;
  }
  return run();
}

}  // namespace trelonit::cli
