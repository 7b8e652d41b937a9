#include "windows/dialogs/RecordTable.h"

#include <QHeaderView>

#include "catalogue/RecordBoxes.h"
#include "platform/errors/Guard.h"
#include "platform/text/NumberText.h"
#include "windows/binding/Binding.h"

namespace trelonit {

namespace {

constexpr int recordNameColumn = 0;
constexpr int firstRecordNumber = 1;
constexpr int recordTypeColumn = firstRecordNumber + static_cast<int>(numberBoxes.size());

}  // namespace

/// The records as the form has them; nothing is copied.
class RecordTable::Model : public QAbstractTableModel {
 public:
  Model(const frmDataManager& form, QObject* parent) : QAbstractTableModel(parent), form_(form) {}

  void Renew() {
    beginResetModel();
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() || !form_.Records.IsAllocated() ? 0 : form_.Records.UpperBound();
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : recordTypeColumn + 1;
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const bool number = index.column() >= firstRecordNumber && index.column() < recordTypeColumn;
    if (role == Qt::TextAlignmentRole) {
      return static_cast<int>(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    }
    // The toolkit's key for copying asks for a cell even where none is chosen.
    if (role != Qt::DisplayRole || !index.isValid()) {
      return {};
    }
    const ProfileRec& record = form_.Records[index.row() + 1];
    if (!number) {
      return ToQt(index.column() == recordNameColumn ? record.Name.Trimmed()
                                                     : record.Type.Trimmed());
    }
    QString text;
    const NumberBox& box =
        numberBoxes[static_cast<std::size_t>(index.column() - firstRecordNumber)];
    // A number that is none has no text.
    PassOver([&] { text = ToQt(NumberToText(record.*box.Field, form_.Locale())); });
    return text;
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation == Qt::Vertical) {
      return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    const Long box = section == recordNameColumn   ? nameBox
                     : section == recordTypeColumn ? typeBox
                                                   : firstNumberBox + section - firstRecordNumber;
    const QString caption = ToQt(form_.lblText[box].Caption());
    switch (role) {
      case Qt::DisplayRole:
        // The unit stands in the hint: there is little room.
        return caption.section(QLatin1Char('='), 0, 0).trimmed();
      case Qt::ToolTipRole:
        return caption;
      default:
        return {};
    }
  }

 private:
  const frmDataManager& form_;
};

RecordTable::RecordTable(frmDataManager& form, QWidget* parent)
    : QTableView(parent), form_(form), model_(new Model(form, this)) {
  setObjectName(QStringLiteral("Records"));
  setAccessibleName(QStringLiteral("Все записи"));
  setModel(model_);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setWordWrap(false);
  horizontalHeader()->setHighlightSections(false);
  const int letter = fontMetrics().horizontalAdvance(QLatin1Char('0'));
  horizontalHeader()->setDefaultSectionSize(7 * letter);
  setColumnWidth(recordNameColumn, 16 * letter);
  setColumnWidth(recordTypeColumn, 50 * letter);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 5);
  form_.RecordsChanged = [this] {
    // A reset forgets the chosen row, which is no choice of the user.
    following_ = true;
    model_->Renew();
    following_ = false;
    FollowCurrent();
  };
  form_.CurrentChanged = [this] { FollowCurrent(); };
  FollowCurrent();
}

RecordTable::~RecordTable() {
  form_.RecordsChanged = nullptr;
  form_.CurrentChanged = nullptr;
}

void RecordTable::FollowCurrent() {
  if (!following_ && form_.CurPos >= 1 && form_.CurPos <= model_->rowCount({})) {
    following_ = true;
    const QModelIndex row = model_->index(form_.CurPos - 1, recordNameColumn);
    setCurrentIndex(row);
    scrollTo(row);
    following_ = false;
  }
}

void RecordTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!following_ && current.isValid()) {
    following_ = true;
    form_.GoToRecord(current.row() + 1);
    following_ = false;
  }
}

}  // namespace trelonit
