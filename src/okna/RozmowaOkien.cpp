#include "okna/RozmowaOkien.h"
#include "okna/frmPytania.h"
#include "okna/Mnemoniki.h"
#include <limits>
#include <QApplication>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <utility>
#include <vector>

namespace tornel::okna {

namespace {

constexpr int kPoIluPokazac = 400;  // ms
constexpr int kCoIleOdswiezac = 50; // ms
constexpr int kSzerokoscPytania = 360;
constexpr int kWysokoscPostepu = 136;

/// Takes the wait cursor off while the clerk has to answer, and puts it back.
class ZawieszenieKursora {
public:
    ZawieszenieKursora() {
        while (const QCursor* kursor = QApplication::overrideCursor()) {
            kursory_.push_back(*kursor);
            QApplication::restoreOverrideCursor();
        }
    }
    ~ZawieszenieKursora() {
        // NOLINTNEXTLINE(modernize-loop-convert): not every compiler reads a reversed view
        for (auto k = kursory_.rbegin(); k != kursory_.rend(); ++k) QApplication::setOverrideCursor(*k);
    }
    ZawieszenieKursora(const ZawieszenieKursora&) = delete;
    ZawieszenieKursora& operator=(const ZawieszenieKursora&) = delete;

private:
    std::vector<QCursor> kursory_;
};

QString naEkran(QString tekst) { return tekst.replace(QLatin1String("\r\n"), QLatin1String("\n")); }

/// A box whose text is never taken for markup: names and notes of the clerk stand in it.
void przygotuj(QMessageBox& okno, const QString& tekst, const QString& tytul) {
    okno.setObjectName(QStringLiteral("komunikaty")); // all boxes share one page of the handbook
    okno.setTextFormat(Qt::PlainText);
    okno.setWindowTitle(tytul);
    okno.setText(naEkran(tekst));
}

QPushButton* dodajPrzycisk(QMessageBox& okno, const QString& napis, QMessageBox::ButtonRole rola,
                           const QString& nazwa) {
    QPushButton* przycisk = okno.addButton(napis, rola);
    przycisk->setObjectName(nazwa);
    return przycisk;
}

class PostepOkna : public Postep {
public:
    PostepOkna(QWidget* rodzic, const QString& tytul, int ile)
        : okno_(QString(), QStringLiteral("&Przerwij"), 0, ile, rodzic) {
        okno_.setObjectName(QStringLiteral("oknoPostepu"));
        okno_.setWindowTitle(tytul);
        okno_.setWindowModality(Qt::ApplicationModal);
        okno_.setAutoClose(false);
        okno_.setAutoReset(false);
        okno_.setMinimumSize(kSzerokoscPytania, kWysokoscPostepu);
        // The dialog's own clock would show it by a guess from the first steps.
        okno_.setMinimumDuration(std::numeric_limits<int>::max());
        okno_.findChild<QLabel*>()->setTextFormat(Qt::PlainText);
        okno_.reset();
        odPoczatku_.start();
        odOdswiezenia_.start();
    }

    [[nodiscard]] bool krok(int krok, const QString& tekst) override {
        if (przerwany_) return false;
        if (odOdswiezenia_.elapsed() < kCoIleOdswiezac) return true;
        odOdswiezenia_.restart();
        if (!okno_.isVisible()) {
            // A click before the window is there would start the same work a second time, so it waits.
            if (odPoczatku_.elapsed() < kPoIluPokazac) return true;
            okno_.show();
        }
        okno_.setLabelText(naEkran(tekst));
        okno_.setValue(krok);
        QApplication::processEvents();
        przerwany_ = okno_.wasCanceled();
        return !przerwany_;
    }

private:
    QProgressDialog okno_;
    QElapsedTimer odPoczatku_, odOdswiezenia_;
    bool przerwany_ = false;
};

} // namespace

RozmowaOkien::RozmowaOkien(std::function<QWidget*()> rodzic) : rodzic_(std::move(rodzic)) {}

QWidget* RozmowaOkien::nadCzym() const {
    if (QWidget* modalne = QApplication::activeModalWidget()) return modalne;
    return rodzic_ ? rodzic_() : nullptr;
}

void RozmowaOkien::komunikat(const QString& tekst, Styl styl, const QString& tytul) {
    const ZawieszenieKursora kursor;
    QMessageBox okno(nadCzym());
    przygotuj(okno, tekst, tytul);
    okno.setIcon(styl == Styl::Krytyczny    ? QMessageBox::Critical
                 : styl == Styl::Wykrzyknik ? QMessageBox::Warning
                                            : QMessageBox::Information);
    QPushButton* ok =
        dodajPrzycisk(okno, QStringLiteral("OK"), QMessageBox::AcceptRole, QStringLiteral("cmdOK"));
    okno.setDefaultButton(ok);
    okno.setEscapeButton(ok);
    mnemoniki::nadajPrzyciskom(okno);
    okno.exec();
}

std::optional<bool> RozmowaOkien::zapytaj(const QString& tekst, const QString& tytul, Domyslny domyslny,
                                          Wyjscie wyjscie) {
    const ZawieszenieKursora kursor;
    QMessageBox okno(nadCzym());
    przygotuj(okno, tekst, tytul);
    okno.setIcon(QMessageBox::Question);
    QPushButton* tak =
        dodajPrzycisk(okno, QStringLiteral("&Tak"), QMessageBox::YesRole, QStringLiteral("cmdTak"));
    QPushButton* nie =
        dodajPrzycisk(okno, QStringLiteral("&Nie"), QMessageBox::NoRole, QStringLiteral("cmdNie"));
    QPushButton* anuluj = wyjscie == Wyjscie::Nie
                              ? nullptr
                              : dodajPrzycisk(okno, QStringLiteral("&Anuluj"), QMessageBox::RejectRole,
                                              QStringLiteral("cmdAnuluj"));
    okno.setDefaultButton(domyslny == Domyslny::Tak ? tak : nie);
    okno.setEscapeButton(anuluj ? anuluj : nie);
    okno.exec();
    if (okno.clickedButton() == tak) return true;
    if (anuluj && okno.clickedButton() != nie) return std::nullopt;
    return false;
}

bool RozmowaOkien::pytanie(const QString& tekst, const QString& tytul) {
    return *zapytaj(tekst, tytul, Domyslny::Tak, Wyjscie::Nie);
}

bool RozmowaOkien::pytanieUsuwajace(const QString& tekst, const QString& tytul) {
    return *zapytaj(tekst, tytul, Domyslny::Nie, Wyjscie::Nie);
}

std::optional<bool> RozmowaOkien::pytanieZAnulowaniem(const QString& tekst, const QString& tytul) {
    return zapytaj(tekst, tytul, Domyslny::Tak, Wyjscie::Anuluj);
}

std::optional<QList<bool>> RozmowaOkien::pytania(const QString& tytul, const QList<PytanieAkcji>& pytania) {
    if (pytania.isEmpty()) return QList<bool>();
    const ZawieszenieKursora kursor;
    frmPytania okno(tytul, pytania, nadCzym());
    if (okno.exec() != QDialog::Accepted) return std::nullopt;
    return okno.odpowiedzi();
}

std::optional<QString> RozmowaOkien::wprowadz(const QString& tekst, const QString& tytul,
                                              const QString& domyslna) {
    const ZawieszenieKursora kursor;
    QInputDialog okno(nadCzym());
    okno.setInputMode(QInputDialog::TextInput);
    okno.setWindowTitle(tytul);
    okno.setLabelText(naEkran(tekst));
    okno.setTextValue(domyslna);
    okno.setOkButtonText(QStringLiteral("OK"));
    okno.setCancelButtonText(QStringLiteral("&Anuluj"));
    // The dialog takes its width from its contents.
    if (auto* pole = okno.findChild<QLineEdit*>()) pole->setMinimumWidth(kSzerokoscPytania);
    if (auto* napis = okno.findChild<QLabel*>()) napis->setTextFormat(Qt::PlainText);
    mnemoniki::nadajPrzyciskom(okno);
    if (okno.exec() != QDialog::Accepted) return {};
    return okno.textValue();
}

std::unique_ptr<Postep> RozmowaOkien::postep(const QString& tytul, int ile) {
    return std::make_unique<PostepOkna>(nadCzym(), tytul, ile);
}

} // namespace tornel::okna
