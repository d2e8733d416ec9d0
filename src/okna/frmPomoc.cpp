#include "okna/frmPomoc.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <array>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

/// The pictures lie in a static library, whose resources the linker would leave out.
static void zapewnijObrazyPomocy() { Q_INIT_RESOURCE(pomoc); }

namespace tornel::okna {

namespace {

constexpr QSize kRozmiar{128 * Wyglad::kSiatka, 88 * Wyglad::kSiatka};
constexpr int kSzerokoscSpisu = 39 * Wyglad::kSiatka;
constexpr int kPoziomy = 3;
/// Where the first line of the text stands that is wholly seen.
constexpr QPoint kGora{2 * Wyglad::kSiatka, 4 * Wyglad::kSiatka};

enum DanePozycji { Temat = Qt::UserRole, Miejsce };

/// A text that stays at the same line when the window is made wider or narrower.
class TekstPomocy : public QTextBrowser {
protected:
    void resizeEvent(QResizeEvent* zdarzenie) override {
        const QTextCursor gora = cursorForPosition({0, 0});
        const int bylo = cursorRect(gora).top();
        QTextBrowser::resizeEvent(zdarzenie);
        if (zdarzenie->size().width() != zdarzenie->oldSize().width())
            verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(gora).top() - bylo);
    }
};

QString arkusz(const QPalette& paleta) {
    return QStringLiteral("h1 { font-size: 18pt; color: %1; margin-top: 28px; margin-bottom: 8px; }"
                          "h2 { font-size: 14pt; color: %1; margin-top: 24px; margin-bottom: 6px; }"
                          "h3 { font-size: 11pt; margin-top: 16px; margin-bottom: 4px; }"
                          "p { margin-top: 6px; margin-bottom: 6px; }"
                          "li { margin-bottom: 3px; }"
                          "table { border-collapse: collapse; border: 1px solid %2; margin-top: 6px; "
                          "margin-bottom: 8px; }"
                          "td, th { border: 1px solid %2; padding: 3px 8px; }"
                          "th { background-color: %3; text-align: left; }"
                          "code { background-color: %3; }")
        .arg(paleta.color(QPalette::Highlight).name(), paleta.color(QPalette::Mid).name(),
             paleta.color(QPalette::AlternateBase).name());
}

QPushButton* przyciskPaska(QDialog& okno, const QString& nazwa, const QString& napis,
                           const QKeySequence& klawisze) {
    QPushButton* nowy = przycisk(nazwa, napis);
    nowy->setToolTip(klawisze.toString(QKeySequence::NativeText));
    nowy->setAutoDefault(false);
    // Not the button's own shortcut, which waits a moment and swallows keys pressed in quick succession.
    QObject::connect(new QShortcut(klawisze, &okno), &QShortcut::activated, nowy, &QPushButton::click);
    return nowy;
}

} // namespace

frmPomoc::frmPomoc(const QString& podrecznik, QWidget* rodzic)
    : Okno(QStringLiteral("frmPomoc"), rodzic), txtSzukaj_(new QLineEdit), labSzukaj_(new QLabel),
      lstSpis_(new QTreeWidget), txtPomoc_(new TekstPomocy) {
    zapewnijObrazyPomocy();
    setWindowTitle(QStringLiteral("Pomoc"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    buduj();
    wczytaj(podrecznik);
    budujSkroty();
    connect(lstSpis_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* p) { pokazTemat(p->data(0, Temat).toString()); });
    connect(txtPomoc_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& adres) { przyjmijTemat(adres.fragment()); });
    connect(txtPomoc_->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { zaznaczWSpisie(txtPomoc_->cursorForPosition(kGora).position()); });
}

void frmPomoc::buduj() {
    lstSpis_->setObjectName(QStringLiteral("lstSpis"));
    lstSpis_->setAccessibleName(QStringLiteral("Spis treści"));
    lstSpis_->setHeaderHidden(true);
    txtPomoc_->setObjectName(QStringLiteral("txtPomoc"));
    txtPomoc_->setAccessibleName(QStringLiteral("Podręcznik"));
    txtPomoc_->document()->setDocumentMargin(2 * Wyglad::kSiatka);
    auto* srodek = new QSplitter;
    srodek->addWidget(lstSpis_);
    srodek->addWidget(txtPomoc_);
    srodek->setStretchFactor(1, 1);
    srodek->setSizes({kSzerokoscSpisu, kRozmiar.width() - kSzerokoscSpisu});
    srodek->setChildrenCollapsible(false);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(rzadSzukania());
    uklad->addWidget(srodek, 1);
    resize(kRozmiar);
    txtPomoc_->setFocus();
}

QWidget* frmPomoc::rzadSzukania() {
    cmdWstecz_ =
        przyciskPaska(*this, QStringLiteral("cmdWstecz"), QStringLiteral("Wstecz"), Qt::ALT | Qt::Key_Left);
    cmdDalej_ =
        przyciskPaska(*this, QStringLiteral("cmdDalej"), QStringLiteral("Dalej"), Qt::ALT | Qt::Key_Right);
    cmdPoprzednie_ = przyciskPaska(*this, QStringLiteral("cmdPoprzednie"), QStringLiteral("Poprzednie"),
                                   Qt::SHIFT | Qt::Key_F3);
    cmdNastepne_ =
        przyciskPaska(*this, QStringLiteral("cmdNastepne"), QStringLiteral("Następne"), Qt::Key_F3);
    for (QPushButton* p : {cmdWstecz_, cmdDalej_, cmdPoprzednie_, cmdNastepne_}) p->setEnabled(false);
    connect(cmdWstecz_, &QPushButton::clicked, txtPomoc_, &QTextBrowser::backward);
    connect(cmdDalej_, &QPushButton::clicked, txtPomoc_, &QTextBrowser::forward);
    connect(txtPomoc_, &QTextBrowser::backwardAvailable, cmdWstecz_, &QPushButton::setEnabled);
    connect(txtPomoc_, &QTextBrowser::forwardAvailable, cmdDalej_, &QPushButton::setEnabled);
    connect(cmdPoprzednie_, &QPushButton::clicked, this, [this] { szukaj(QTextDocument::FindBackward); });
    connect(cmdNastepne_, &QPushButton::clicked, this, [this] { szukaj({}); });

    txtSzukaj_->setObjectName(QStringLiteral("txtSzukaj"));
    txtSzukaj_->setPlaceholderText(QStringLiteral("Szukaj w podręczniku (Ctrl+F)"));
    txtSzukaj_->setAccessibleName(QStringLiteral("Szukaj w podręczniku"));
    txtSzukaj_->setClearButtonEnabled(true);
    txtSzukaj_->setMinimumHeight(Wyglad::kWysokoscPola);
    connect(txtSzukaj_, &QLineEdit::returnPressed, this, [this] { szukaj({}); });
    connect(txtSzukaj_, &QLineEdit::textChanged, this, [this](const QString& tekst) {
        for (QPushButton* p : {cmdPoprzednie_, cmdNastepne_}) p->setEnabled(!tekst.trimmed().isEmpty());
        // While it is being typed, a longer text may still fit the place found.
        QTextCursor tu = txtPomoc_->textCursor();
        tu.setPosition(tu.selectionStart());
        txtPomoc_->setTextCursor(tu);
        szukaj({});
    });
    labSzukaj_->setObjectName(QStringLiteral("labSzukaj"));

    auto* rzad = new QWidget;
    auto* uklad = new QHBoxLayout(rzad);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addWidget(cmdWstecz_);
    uklad->addWidget(cmdDalej_);
    uklad->addSpacing(2 * Wyglad::kSiatka);
    uklad->addWidget(txtSzukaj_, 1);
    uklad->addWidget(labSzukaj_);
    uklad->addWidget(cmdPoprzednie_);
    uklad->addWidget(cmdNastepne_);
    return rzad;
}

void frmPomoc::wczytaj(const QString& podrecznik) {
    txtPomoc_->document()->setDefaultStyleSheet(arkusz(palette()));
    txtPomoc_->setHtml(podrecznik);
    budujSpis();
}

void frmPomoc::budujSpis() {
    std::array<QTreeWidgetItem*, kPoziomy + 1> rodzice{lstSpis_->invisibleRootItem()};
    for (QTextBlock blok = txtPomoc_->document()->begin(); blok.isValid(); blok = blok.next()) {
        const int poziom = blok.blockFormat().headingLevel();
        if (poziom < 1 || poziom > kPoziomy || blok.begin().atEnd()) continue;
        const QStringList nazwy = blok.begin().fragment().charFormat().anchorNames();
        if (nazwy.isEmpty()) continue;
        auto* pozycja = new QTreeWidgetItem(rodzice[static_cast<std::size_t>(poziom) - 1], {blok.text()});
        pozycja->setData(0, Temat, nazwy.first());
        pozycja->setData(0, Miejsce, blok.position());
        pozycja->setToolTip(0, blok.text());
        pozycja->setExpanded(poziom == 1);
        std::fill(rodzice.begin() + poziom, rodzice.end(), pozycja);
        tematy_.insert(nazwy.first(), pozycja);
        poKolei_.append(pozycja);
    }
}

void frmPomoc::budujSkroty() {
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        txtSzukaj_->setFocus(Qt::ShortcutFocusReason);
        txtSzukaj_->selectAll();
    });
}

bool frmPomoc::pokazTemat(const QString& temat) {
    if (!tematy_.contains(temat)) return false;
    QUrl adres;
    adres.setFragment(temat);
    txtPomoc_->setSource(adres);
    return true;
}

QString frmPomoc::temat() const { return txtPomoc_->source().fragment(); }

void frmPomoc::przyjmijTemat(const QString& temat) {
    QTreeWidgetItem* pozycja = tematy_.value(temat);
    if (!pozycja) return;
    // The search goes on from here.
    QTextCursor poczatek(txtPomoc_->document());
    poczatek.setPosition(pozycja->data(0, Miejsce).toInt());
    txtPomoc_->setTextCursor(poczatek);
    zaznacz(pozycja);
}

void frmPomoc::zaznaczWSpisie(int miejsce) {
    const auto nastepna = std::ranges::upper_bound(
        poKolei_, miejsce, {}, [](const QTreeWidgetItem* p) { return p->data(0, Miejsce).toInt(); });
    if (nastepna != poKolei_.begin()) zaznacz(*std::prev(nastepna));
}

void frmPomoc::zaznacz(QTreeWidgetItem* pozycja) {
    const QSignalBlocker cisza(lstSpis_);
    lstSpis_->setCurrentItem(pozycja);
    lstSpis_->scrollToItem(pozycja);
}

void frmPomoc::szukaj(QTextDocument::FindFlags kierunek) {
    const QString szukany = txtSzukaj_->text().trimmed();
    const QTextCursor przedtem = txtPomoc_->textCursor();
    const int wysokosc = txtPomoc_->verticalScrollBar()->value();
    bool jest = !szukany.isEmpty() && txtPomoc_->find(szukany, kierunek);
    if (!jest && !szukany.isEmpty()) {
        // Past the end the search goes on from the beginning, and the other way round.
        txtPomoc_->moveCursor(kierunek & QTextDocument::FindBackward ? QTextCursor::End : QTextCursor::Start);
        jest = txtPomoc_->find(szukany, kierunek);
    }
    labSzukaj_->setText(jest || szukany.isEmpty() ? QString() : QStringLiteral("Nie znaleziono"));
    if (jest) return zaznaczWSpisie(txtPomoc_->textCursor().position());
    txtPomoc_->setTextCursor(przedtem);
    txtPomoc_->verticalScrollBar()->setValue(wysokosc);
}

} // namespace tornel::okna
