#include <dlfcn.h>

#include "platform/errors/RuntimeError.h"
#include "workstation/results/XlsxLibrary.h"

namespace trelonit {

namespace {

class LoadedLibrary {
 public:
  LoadedLibrary() : handle_(dlopen(TRELONIT_XLSXWRITER, RTLD_LAZY | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
      throw RuntimeError(ErrorNumber::FileNotFound);
    }
    Find(routines_.NewWorkbook, "workbook_new_opt");
    Find(routines_.SetProperties, "workbook_set_properties");
    Find(routines_.AddWorksheet, "workbook_add_worksheet");
    Find(routines_.AddFormat, "workbook_add_format");
    Find(routines_.CloseWorkbook, "workbook_close");
    Find(routines_.SetBold, "format_set_bold");
    Find(routines_.SetTextWrap, "format_set_text_wrap");
    Find(routines_.SetAlign, "format_set_align");
    Find(routines_.SetNumberFormat, "format_set_num_format");
    Find(routines_.WriteString, "worksheet_write_string");
    Find(routines_.WriteNumber, "worksheet_write_number");
    Find(routines_.SetColumn, "worksheet_set_column");
    Find(routines_.FreezePanes, "worksheet_freeze_panes");
    Find(routines_.SetLandscape, "worksheet_set_landscape");
    Find(routines_.SetPaper, "worksheet_set_paper");
    Find(routines_.FitToPages, "worksheet_fit_to_pages");
    Find(routines_.RepeatRows, "worksheet_repeat_rows");
  }
  const XlsxLibrary& Routines() const { return routines_; }

 private:
  template <class Routine>
  void Find(Routine*& routine, const char* name) {
    routine = reinterpret_cast<Routine*>(dlsym(handle_, name));
    if (routine == nullptr) {
      throw RuntimeError(ErrorNumber::FileNotFound);
    }
  }

  /// It stays as long as the program: the next table needs it again.
  void* handle_;
  XlsxLibrary routines_;
};

}  // namespace

const XlsxLibrary& LoadXlsxLibrary() {
  // Where it fails, the next table tries again.
  static const LoadedLibrary library;
  return library.Routines();
}

}  // namespace trelonit
