#include "zus/frmListaDRA.h"
#include "common/Liczby.h"
#include "okna/frmInputData.h"
#include "okna/Klepsydra.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "payroll/miesiace/frmSymboleList.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace tornel::zus {

using schemat::ZUS;

namespace {

Pole poleDRA(const char16_t* nazwa, const char16_t* podpis, std::string_view kolumna,
             Rodzaj rodzaj = Rodzaj::Kwota) {
    return {QString::fromUtf16(nazwa), QString::fromUtf16(podpis), ZUS.nr(ZUS.numer(kolumna)), rodzaj};
}

OpisListyPol opisDRA(const QList<QPushButton*>& przyciski) {
    OpisListyPol o;
    o.przyciski = przyciski;
    o.nazwa = QStringLiteral("frmListaDRA");
    o.tytul = QStringLiteral("Lista dokumentów ZUS DRA");
    o.kolumny = {{QStringLiteral("MIESIĄC"), Qt::AlignLeft, Porzadek::Data},
                 {QStringLiteral("NR"), Qt::AlignRight},
                 {QStringLiteral("DO ZAPŁATY"), Qt::AlignRight}};
    o.udzialy = {36, 16, 48};
    o.szerokosc = 260;
    o.pustaLista = QStringLiteral(
        "Nie ma jeszcze żadnego rozliczenia.\nPrzycisk „Nowy” tworzy je z list płac miesiąca.");
    o.szukaj = QStringLiteral("Szukaj: numer lub miesiąc");
    o.kolumnaNumeru = 1;
    o.kolumnaNazwy = 0;
    o.grupy = {
        {QStringLiteral("ROZLICZENIE"),
         {poleDRA(u"txtIlUb", u"Liczba ubezpieczonych:", "il_ub", Rodzaj::Liczba),
          poleDRA(u"txtDataWyp", u"Data wypełnienia:", "data_wyp", Rodzaj::Data),
          poleDRA(u"chkKedu", u"Do kolekcji KEDU", "kedu", Rodzaj::Flaga),
          poleDRA(u"txtListy", u"Listy płac:", "Listy", Rodzaj::Tekst)},
         2},
        {QStringLiteral("SKŁADKI NA UBEZPIECZENIA SPOŁECZNE"),
         {poleDRA(u"txtFeprd", u"Emerytalne płatnika:", "Feprd"),
          poleDRA(u"txtFrprd", u"Rentowe płatnika:", "Frprd"),
          poleDRA(u"txtFwprd", u"Wypadkowe płatnika:", "fwprd"),
          poleDRA(u"txtFeprc", u"Emerytalne ubezpieczonych:", "Feprc"),
          poleDRA(u"txtFrprc", u"Rentowe ubezpieczonych:", "Frprc"),
          poleDRA(u"txtFcprc", u"Chorobowe ubezpieczonych:", "FcPrc")},
         2},
        {QStringLiteral("WYPŁACONE ŚWIADCZENIA"),
         {poleDRA(u"txtSwiadFc", u"Z ubezpieczenia chorobowego:", "swiad_fc"),
          poleDRA(u"txtSwiadFw", u"Z ubezpieczenia wypadkowego:", "swiad_fw"),
          poleDRA(u"txtSwiadBp", u"Z budżetu państwa:", "swiad_bp")},
         2},
        {QStringLiteral("ZDROWOTNE I FUNDUSZE"),
         {poleDRA(u"txtUbzdr", u"Ubezpieczenie zdrowotne:", "Ubzdr"),
          poleDRA(u"txtFp", u"Fundusz Pracy:", "Fp"), poleDRA(u"txtFgsp", u"Fundusz GŚP:", "Fgsp"),
          poleDRA(u"txtDoZaplaty", u"Do zapłaty razem:", "do_zaplaty")},
         2},
        {QStringLiteral("INFORMACJE OPISOWE"), {poleDRA(u"txtInfOpis", u"", "inf_opis", Rodzaj::Notatka)}},
    };
    return o;
}

} // namespace

frmListaDRA::frmListaDRA(Otoczenie& otoczenie, Wydrukuj wydrukuj, QWidget* rodzic)
    : frmListaDRA(otoczenie, std::move(wydrukuj), rodzic,
                  przycisk(QStringLiteral("cmdKontrola"), QStringLiteral("&Kontrola z RCA")),
                  przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj")) {}

frmListaDRA::frmListaDRA(Otoczenie& otoczenie, Wydrukuj wydrukuj, QWidget* rodzic, QPushButton* kontrola,
                         QPushButton* druk)
    : frmListaPol(otoczenie.rozmowa,
                  std::make_unique<ZrodloWierszy>(std::initializer_list<Recordset*>{&otoczenie.sesja.rsZUS}),
                  opisDRA({kontrola, druk}), rodzic),
      o_(otoczenie), wydrukuj_(std::move(wydrukuj)), rozliczenia_(otoczenie), labWplaty_(new QLabel),
      labNieaktualne_(Wyglad::baner({}, this)),
      lvwKontrola_(new WidokListy({{QStringLiteral("POZYCJA")},
                                   {QStringLiteral("ROZLICZENIE"), Qt::AlignRight},
                                   {QStringLiteral("SUMA RCA"), Qt::AlignRight},
                                   {QStringLiteral("RÓŻNICA"), Qt::AlignRight}},
                                  {40, 20, 20, 20})),
      cmdKontrola_(kontrola), cmdDrukuj_(druk) {
    dodaj(podsumowanie());
    connect(kontrola, &QPushButton::clicked, this, &frmListaDRA::kontroluj);
    connect(druk, &QPushButton::clicked, this, &frmListaDRA::drukuj);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, druk, &QPushButton::click);
    druk->setVisible(static_cast<bool>(wydrukuj_));
    Wczytaj();
}

QWidget* frmListaDRA::podsumowanie() {
    labWplaty_->setObjectName(QStringLiteral("labWplaty"));
    labWplaty_->setTextFormat(Qt::PlainText);
    labNieaktualne_->setObjectName(QStringLiteral("labNieaktualne"));
    labNieaktualne_->setWordWrap(true);
    lvwKontrola_->setObjectName(QStringLiteral("lvwKontrola"));
    lvwKontrola_->setAccessibleName(QStringLiteral("Kontrola z RCA"));
    lvwKontrola_->ustawRole(RolaListy::Tabliczka);
    lvwKontrola_->setFixedHeight(22 * Wyglad::kSiatka);
    lvwKontrola_->hide();
    auto* calosc = new QWidget;
    auto* uklad = new QVBoxLayout(calosc);
    uklad->setContentsMargins(0, 0, 0, 0);
    for (QWidget* w : {static_cast<QWidget*>(labWplaty_), static_cast<QWidget*>(labNieaktualne_),
                       static_cast<QWidget*>(lvwKontrola_)})
        uklad->addWidget(w);
    return calosc;
}

QList<qint64> frmListaDRA::numery() {
    QList<qint64> wynik;
    for (const KluczDRA& k : rozliczenia_.lista()) wynik.append(k.id());
    return wynik;
}

QStringList frmListaDRA::tekstyWiersza(qint64 id) {
    const KluczDRA k = KluczDRA::zId(id);
    (void)rozliczenia_.zaznacz(k);
    return {k.miesiac.napis(), QString::number(k.numer),
            FormatKwoty(o_.sesja.rsZUS.kwota(ZUS("do_zaplaty")))};
}

bool frmListaDRA::zapisz(qint64 id) {
    Q_UNUSED(id)
    rozliczenia_.Wpisz();
    return true;
}

void frmListaDRA::porzuc() { o_.sesja.rsZUS.CancelBatch(); }

std::optional<qint64> frmListaDRA::utworz() {
    const QList<WierszMiesiaca> miesiace = Miesiace(o_).Wczytaj_liste();
    frmInputData pytanie(frmInputData::Tryb::Miesiac, QStringLiteral("Deklaracja DRA na:"),
                         miesiace.isEmpty() ? QDate::currentDate() : miesiace.last().miesiac.pierwszyDzien(),
                         this);
    if (pytanie.exec() != Accepted) return std::nullopt;
    const RokMies miesiac{pytanie.rok(), pytanie.mies()};
    QString listy;
    if (o_.stale.AktOpWieluList) {
        frmSymboleList symbole(SymboleList(o_.sesja, {miesiac}), this);
        if (symbole.exec() != Accepted) return std::nullopt;
        listy = symbole.listy();
    }
    const auto nowe = rozliczenia_.Nowe(miesiac, listy, QDate::currentDate());
    return nowe ? std::optional(nowe->id()) : std::nullopt;
}

void frmListaDRA::pokazano(qint64 id) {
    for (QPushButton* p : {cmdKontrola_, cmdDrukuj_}) p->setEnabled(id >= 0);
    lvwKontrola_->hide();
    labWplaty_->clear();
    Wyglad::ustawBaner(*labNieaktualne_, {});
    if (id < 0) return;
    const SumyDRA sumy = rozliczenia_.sumy();
    const WplatyDRA w = Wplaty(sumy);
    labWplaty_->setText(
        QStringLiteral("Wpłaty:  społeczne (51) %1 zł%2,  zdrowotne (52) %3 zł,  Fundusz Pracy i GŚP "
                       "(53) %4 zł")
            .arg(FormatKwoty(w.spoleczne), w.spoleczne < Waluta{} ? QStringLiteral(" do zwrotu") : QString(),
                 FormatKwoty(w.zdrowotne), FormatKwoty(w.fundusze)));
    const auto dzis = rozliczenia_.dzisiejsze();
    if (!dzis || *dzis == sumy) return;
    Wyglad::ustawBaner(
        *labNieaktualne_,
        QStringLiteral(
            "Listy płac tego miesiąca dają dziś inne kwoty (do zapłaty %1). Miesiąc albo rozliczenie "
            "zmieniono po jego utworzeniu.")
            .arg(FormatKwoty(Wplaty(*dzis).razem())));
}

void frmListaDRA::kontroluj() {
    if (!Wpisz() || biezacy() < 0 || !przejdz(biezacy())) return;
    const Klepsydra klepsydra;
    QList<WierszListy> wiersze;
    for (const KontrolaDRA& k : rozliczenia_.kontrola()) {
        const Waluta roznica = k.deklaracja - k.raport;
        wiersze.append(
            {wiersze.size(),
             {k.napis.toString(), FormatKwoty(k.deklaracja), FormatKwoty(k.raport),
              roznica.zero() ? QStringLiteral("zgodne") : FormatKwoty(roznica)},
             roznica.zero() ? QString() : QStringLiteral("Rozliczenie nie zgadza się z wierszami RCA."),
             Waga::Wazna});
    }
    lvwKontrola_->ustawPodpowiedz(QStringLiteral("Nie ma list płac tego miesiąca."));
    lvwKontrola_->ustaw(wiersze);
    lvwKontrola_->show();
}

void frmListaDRA::drukuj() {
    if (wydrukuj_ && Wpisz() && biezacy() >= 0 && przejdz(biezacy())) wydrukuj_(this);
}

} // namespace tornel::zus
