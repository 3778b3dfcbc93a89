#include "desktop/TimetableImportView.h"

#include "desktop/SheetReaderProcess.h"
#include "engine/PrayerNames.h"
#include "timetable/Timetable.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTextBlock>

namespace tarvanel {

namespace {

QFont monospaced() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(12);
    return font;
}

QLabel* secondary(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setAccessibleName(text);
    return label;
}

// A titled section with its explanatory footer under the rows.
QGroupBox* section(const QString& header, const QString& footer, QLayout* rows, QWidget* parent) {
    auto* box = new QGroupBox(header, parent);
    box->setAccessibleName(header);
    auto* layout = new QVBoxLayout(box);
    layout->addLayout(rows);
    if (!footer.isEmpty()) layout->addWidget(secondary(footer, box));
    return box;
}

// A prayer's short name in a preview row.
QString shortName(const QString& prayer) {
    //: Fajr shortened to fit a column of the timetable's preview
    if (prayer == QLatin1String("Fajr")) return QCoreApplication::translate("ImportWindow", "Faj");
    //: Dhuhr shortened to fit a column of the timetable's preview
    if (prayer == QLatin1String("Dhuhr")) return QCoreApplication::translate("ImportWindow", "Dhu");
    //: Asr shortened to fit a column of the timetable's preview
    if (prayer == QLatin1String("Asr")) return QCoreApplication::translate("ImportWindow", "Asr");
    //: Maghrib shortened to fit a column of the timetable's preview
    if (prayer == QLatin1String("Maghrib"))
        return QCoreApplication::translate("ImportWindow", "Mag");
    //: Isha shortened to fit a column of the timetable's preview
    if (prayer == QLatin1String("Isha")) return QCoreApplication::translate("ImportWindow", "Ish");
    //: Jumu'ah shortened to fit a column of the timetable's preview
    if (prayer == QLatin1String("Jumu'ah"))
        return QCoreApplication::translate("ImportWindow", "Jum");
    return prayer.left(3);
}

} // namespace

TimetableImportView::TimetableImportView(std::function<void(const DayTable&)> save,
                                         std::function<void()> cancel, QWidget* parent)
    : QWidget(parent), save_(std::move(save)), cancel_(std::move(cancel)),
      model_(new TimetableImportModel(this)), reader_(new SheetReaderProcess(this)) {
    setMinimumSize(576, 520);
    auto* form = new QWidget;
    auto* formLayout = new QVBoxLayout(form);

    // 1. The text.
    auto* textRows = new QVBoxLayout;
    editor_ = new QPlainTextEdit(form);
    editor_->setFont(monospaced());
    editor_->setMinimumHeight(150);
    // One row of the sheet a line: the marks and "line 6" in the summary stay one line each.
    editor_->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QString textTitle = tr("1. Your masjid's timetable");
    editor_->setAccessibleName(textTitle);
    textRows->addWidget(editor_);
    marks_ = std::make_unique<TimetableTextMarks>(editor_);
    auto* fileRow = new QHBoxLayout;
    auto* choose = new QPushButton(tr("Choose File…"), form);
    choose->setAccessibleName(choose->text());
    spinner_ = new QProgressBar(form);
    spinner_->setRange(0, 0);
    spinner_->setMaximumWidth(48);
    spinner_->setTextVisible(false);
    //: A busy indicator while a photo or PDF is read
    spinner_->setAccessibleName(tr("Reading"));
    status_ = secondary(QString(), form);
    fileRow->addWidget(choose);
    fileRow->addWidget(spinner_);
    fileRow->addWidget(status_, 1);
    textRows->addLayout(fileRow);
    // Rows that would be dropped: a click takes the cursor to the first so it can be mended.
    problems_ = new QLabel(form);
    problems_->setWordWrap(true);
    problems_->setCursor(Qt::PointingHandCursor);
    problems_->setFocusPolicy(Qt::TabFocus);
    QPalette warning = problems_->palette();
    warning.setColor(QPalette::WindowText, QColor(0xB0, 0x3A, 0x2E));
    problems_->setPalette(warning);
    problems_->installEventFilter(this);
    textRows->addWidget(problems_);
    doubts_ = secondary(QString(), form);
    textRows->addWidget(doubts_);
    formLayout->addWidget(
        section(textTitle,
                tr("Paste it from the masjid's website or PDF, or choose a CSV, a photo or a "
                   "screenshot of the printed sheet. Photos are read on your computer; nothing "
                   "is uploaded."),
                textRows, form));

    // 2. The columns, month and year.
    auto* pickRows = new QFormLayout;
    for (const QString& prayer : TimetableImportModel::prayers()) {
        auto* picker = new QComboBox(form);
        picker->setAccessibleName(prayerLabel(prayer));
        pickRows->addRow(prayerLabel(prayer), picker);
        pickers_ << picker;
        connect(picker, &QComboBox::activated, this, [this, prayer, picker](int index) {
            model_->setColumn(prayer, picker->itemData(index).toInt());
        });
    }
    month_ = new QComboBox(form);
    const QString monthLabel = tr("Month");
    month_->setAccessibleName(monthLabel);
    const QStringList months = TimetableImportModel::monthNames();
    for (int m = 1; m <= 12; ++m)
        month_->addItem(months[m - 1], m);
    pickRows->addRow(monthLabel, month_);
    year_ = new QSpinBox(form);
    year_->setRange(2020, 2100);
    year_->setGroupSeparatorShown(false);
    const QString yearLabel = tr("Year");
    year_->setAccessibleName(yearLabel);
    pickRows->addRow(yearLabel, year_);
    //: Jamaat and iqamah: the time the congregation prays at the masjid
    formLayout->addWidget(
        section(tr("2. Which column is which"),
                tr("Pick the jamaat (iqamah) column for each prayer, the time you actually pray. "
                   "Times without AM/PM are read as morning for Fajr, midday for Dhuhr, and "
                   "afternoon or evening for the rest."),
                pickRows, form));

    // 3. The preview.
    previewRows_ = new QVBoxLayout;
    auto* previewBox = section(QString(), QString(), previewRows_, form);
    previewBox_ = previewBox;
    formLayout->addWidget(previewBox);
    formLayout->addStretch(1);

    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(form);

    auto* divider = new QFrame(this);
    divider->setFrameShape(QFrame::HLine);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(16, 16, 16, 16);
    bar->addStretch(1);
    auto* cancelButton = new QPushButton(tr("Cancel"), this);
    cancelButton->setAccessibleName(cancelButton->text());
    use_ = new QPushButton(tr("Use This Timetable"), this);
    use_->setAccessibleName(use_->text());
    use_->setDefault(true);
    bar->addWidget(cancelButton);
    bar->addWidget(use_);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addWidget(scroll, 1);
    outer->addWidget(divider);
    outer->addLayout(bar);

    connect(editor_, &QPlainTextEdit::textChanged, this, [this] {
        if (editor_->toPlainText() != model_->text()) model_->setText(editor_->toPlainText());
    });
    connect(model_, &TimetableImportModel::textChanged, this, [this] {
        if (editor_->toPlainText() == model_->text()) return;
        editor_->setPlainText(model_->text());
        marks_->take(model_->doubtfulCells());
        refreshMarks();
    });
    connect(model_, &TimetableImportModel::changed, this, &TimetableImportView::refresh);
    connect(month_, &QComboBox::activated, this,
            [this](int index) { model_->setMonth(month_->itemData(index).toInt()); });
    connect(year_, &QSpinBox::valueChanged, this, [this](int year) { model_->setYear(year); });
    connect(reader_, &SheetReaderProcess::finished, model_,
            &TimetableImportModel::imageReadFinished);
    connect(reader_, &SheetReaderProcess::failed, model_, &TimetableImportModel::imageReadFailed);
    connect(reader_, &SheetReaderProcess::progress, model_,
            &TimetableImportModel::imageReadProgress);
    connect(choose, &QPushButton::clicked, this, &TimetableImportView::chooseFile);
    connect(cancelButton, &QPushButton::clicked, this, [this] { cancel_(); });
    connect(use_, &QPushButton::clicked, this, [this] {
        const DayTable days = model_->days();
        if (!days.isEmpty()) save_(days);
    });
    refresh();
}

void TimetableImportView::openFile(const QString& path) {
    if (TimetableImportModel::kindOf(path) == ImportFileKind::Text) {
        model_->loadTextFile(path);
        return;
    }
    model_->imageReadStarted(QFileInfo(path).fileName());
    reader_->read(path);
}

void TimetableImportView::chooseFile() {
    auto* dialog = new QFileDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    //: A file type filter; keep the part in brackets as it is
    dialog->setNameFilters({tr("Timetables (*.csv *.txt *.tsv *.png *.jpg *.jpeg *.gif *.bmp *.tif "
                               "*.tiff *.webp *.pdf)"),
                            //: A file type filter; keep the part in brackets as it is
                            tr("All files (*)")});
    dialog->setLabelText(QFileDialog::Accept, tr("Read Timetable"));
    connect(dialog, &QFileDialog::fileSelected, this, &TimetableImportView::openFile);
    dialog->open();
}

void TimetableImportView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        cancel_();
    } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
               use_->isEnabled()) {
        use_->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

bool TimetableImportView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == problems_) {
        const bool click = event->type() == QEvent::MouseButtonRelease;
        const bool key = event->type() == QEvent::KeyPress &&
                         (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space ||
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return);
        if (click || key) {
            goToFirstProblem();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void TimetableImportView::goToFirstProblem() {
    const QList<RowProblem> problems = model_->problems();
    if (problems.isEmpty()) return;
    QTextCursor cursor(editor_->document()->findBlockByNumber(problems.first().line));
    editor_->setTextCursor(cursor);
    editor_->ensureCursorVisible();
    editor_->setFocus();
}

void TimetableImportView::refreshMarks() {
    const QString note = TimetableTextMarks::note(marks_->show(model_->problems()));
    doubts_->setText(note);
    doubts_->setAccessibleName(note);
    doubts_->setVisible(!note.isEmpty());
}

void TimetableImportView::refresh() {
    spinner_->setVisible(model_->reading());
    status_->setText(model_->status());
    status_->setAccessibleName(model_->status());
    const QString problems = model_->problemSummary();
    problems_->setText(problems);
    problems_->setAccessibleName(problems);
    problems_->setVisible(!problems.isEmpty());
    refreshMarks();
    refreshPickers();
    month_->setCurrentIndex(model_->month() - 1);
    const QSignalBlocker block(year_);
    year_->setValue(model_->year());
    refreshPreview();
}

void TimetableImportView::refreshPickers() {
    //: A prayer's column choice: the timetable has no column for this prayer
    QStringList captions{tr("Not in the timetable")};
    for (int i = 0; i < model_->columnCount(); ++i)
        captions << model_->columnLabel(i);
    const QStringList& prayers = TimetableImportModel::prayers();
    for (int p = 0; p < prayers.size(); ++p) {
        QComboBox* picker = pickers_[p];
        if (captions != pickerCaptions_) {
            picker->clear();
            for (int i = 0; i < captions.size(); ++i)
                picker->addItem(captions[i], i - 1);
        }
        picker->setCurrentIndex(picker->findData(model_->column(prayers[p])));
    }
    pickerCaptions_ = captions;
}

void TimetableImportView::refreshPreview() {
    const DayTable days = model_->days();
    static_cast<QGroupBox*>(previewBox_)
        ->setTitle(tr("3. Preview (%Ln days)", nullptr, int(days.size())));
    previewBox_->setAccessibleName(static_cast<QGroupBox*>(previewBox_)->title());
    use_->setEnabled(!days.isEmpty());
    while (QLayoutItem* item = previewRows_->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const auto preview = model_->preview();
    if (preview.isEmpty()) {
        previewRows_->addWidget(
            secondary(tr("No days yet. Check the month and the columns."), this));
        return;
    }
    for (const auto& [key, times] : preview) {
        QStringList cells;
        for (const QString& prayer : TimetableImportModel::prayers())
            if (times.contains(prayer)) cells << shortName(prayer) + u' ' + times[prayer];
        auto* row = new QWidget;
        auto* layout = new QHBoxLayout(row);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(new QLabel(key, row));
        layout->addStretch(1);
        auto* line = new QLabel(cells.join(QStringLiteral("  ")), row);
        line->setFont(monospaced());
        layout->addWidget(line);
        previewRows_->addWidget(row);
    }
}

TimetableImportView* openTimetableImport(const QString& file, std::function<void()> onUse) {
    static QPointer<QWidget> open;
    if (open) open->close();
    auto* window = new QWidget;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(QCoreApplication::translate("ImportWindow", "Import Masjid Timetable"));

    window->resize(640, 700);
    const QPointer<QWidget> self(window);
    auto* view = new TimetableImportView(
        [self, onUse = std::move(onUse)](const DayTable& days) {
            Timetable::merge(days);
            if (onUse) onUse();
            if (self) self->close();
        },
        [self] {
            if (self) self->close();
        },
        window);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    open = window;
    window->show();
    window->raise();
    window->activateWindow();
    if (!file.isEmpty()) view->openFile(file);
    return view;
}

} // namespace tarvanel
