#pragma once

#include <QPageLayout>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "drawing/host/Drawing.h"
#include "drawing/host/TitleBlock.h"
#include "editor/document/RichDocument.h"

namespace trelonit {

/// The bytes of a PDF file with the pages of a document and behind them a sheet for each drawing,
/// of the size that it needs. Raises 57 where it cannot be painted, 6 for a drawing beyond all
/// numbers.
std::string WriteReportPdf(const RichDocument& document, const std::string& title,
                           const QPageLayout& layout,
                           const std::vector<std::shared_ptr<Drawing>>& drawings,
                           const std::optional<TitleBlock>& block);

}  // namespace trelonit
