#include "zus/frmUwagiKedu.h"
#include "okna/Klawisze.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::zus {

frmUwagiKedu::frmUwagiKedu(std::function<QList<UwagaKedu>()> sprawdz, Popraw popraw, QWidget* rodzic)
    : Okno(QStringLiteral("frmUwagiKedu"), rodzic), sprawdz_(std::move(sprawdz)), popraw_(std::move(popraw)),
      lvwUwagi_(new WidokListy(
          {{QStringLiteral("KOGO DOTYCZY")}, {QStringLiteral("DOKUMENTY")}, {QStringLiteral("UWAGA")}},
          {24, 18, 58})),
      labIle_(new QLabel),
      cmdOtworz_(przycisk(QStringLiteral("cmdOtworz"), QStringLiteral("P&opraw"), u"wejdz")),
      cmdMimo_(przycisk(QStringLiteral("cmdMimo"), QStringLiteral("Zapisz &mimo uwag"))) {
    setWindowTitle(QStringLiteral("Uwagi przed zapisem kolekcji"));
    lvwUwagi_->setObjectName(QStringLiteral("lvwUwagi"));
    lvwUwagi_->setAccessibleName(QStringLiteral("Uwagi"));
    labIle_->setObjectName(QStringLiteral("labIle"));
    labIle_->setWordWrap(true);
    auto* cmdSprawdz = przycisk(QStringLiteral("cmdSprawdz"), QStringLiteral("&Sprawdź ponownie"));
    auto* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    podlacz(Polecenie::Odswiez, *cmdSprawdz);
    for (QPushButton* p : {cmdOtworz_, cmdMimo_, cmdSprawdz, cmdAnuluj}) p->setAutoDefault(false);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(labIle_);
    uklad->addWidget(lvwUwagi_, 1);
    uklad->addWidget(rzadPrzyciskow({cmdOtworz_, cmdSprawdz, cmdMimo_, cmdAnuluj, przyciskPomocy()}));
    resize(110 * Wyglad::kSiatka, 60 * Wyglad::kSiatka);

    connect(lvwUwagi_, &WidokListy::wejscie, this, &frmUwagiKedu::otworz);
    connect(lvwUwagi_, &WidokListy::wybrano, this, &frmUwagiKedu::pokazWybrana);
    connect(cmdOtworz_, &QPushButton::clicked, this, [this] { otworz(lvwUwagi_->wybrany()); });
    connect(cmdMimo_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdSprawdz, &QPushButton::clicked, this, &frmUwagiKedu::wczytaj);
    wczytaj();
    lvwUwagi_->setFocus();
}

void frmUwagiKedu::wczytaj() {
    const qint64 wybrana = lvwUwagi_->wybrany();
    uwagi_ = sprawdz_();
    QList<WierszListy> wiersze;
    for (const UwagaKedu& u : uwagi_) wiersze.append({wiersze.size(), {u.kto, u.dokumenty, u.uwaga}});
    lvwUwagi_->ustaw(wiersze, wybrana);
    labIle_->setText(
        uwagi_.isEmpty()
            ? QStringLiteral("Nie ma już uwag.")
            : QStringLiteral("Uwag: %1. ZUS może odrzucić te dokumenty; kolekcję można zapisać mimo to.")
                  .arg(uwagi_.size()));
    cmdMimo_->setText(uwagi_.isEmpty() ? QStringLiteral("Zapisz &kolekcję")
                                       : QStringLiteral("Zapisz &mimo uwag"));
    if (uwagi_.isEmpty()) pokazWybrana(-1);
}

void frmUwagiKedu::pokazWybrana(qint64 nr) {
    const bool jest = nr >= 0 && nr < uwagi_.size();
    cmdOtworz_->setEnabled(popraw_ && jest && uwagi_.at(nr).gdzie != MiejscePoprawki::Brak);
}

void frmUwagiKedu::otworz(qint64 nr) {
    if (nr < 0 || nr >= uwagi_.size() || !popraw_ || uwagi_.at(nr).gdzie == MiejscePoprawki::Brak) return;
    popraw_(uwagi_.at(nr), this);
    wczytaj();
}

} // namespace tornel::zus
