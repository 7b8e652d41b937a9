#include "workstation/results/XlsxTable.h"

namespace trelonit {

SpreadsheetWriter XlsxWriter() {
  return {};
}

}  // namespace trelonit
