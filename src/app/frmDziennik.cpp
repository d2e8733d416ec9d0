#include "app/frmDziennik.h"
#include "app/Uprawnienia.h"
#include "common/Blad.h"
#include "common/Csv.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Pliki.h"
#include "okna/Drukowanie.h"
#include "okna/frmInputData.h"
#include "okna/Klepsydra.h"
#include "okna/MenuListy.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/UwagaPola.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "rules/SlowaDziennika.h"
#include "rules/Stale.h"
#include "start/Archiwum.h"
#include "start/Foldery.h"
#include "store/Schemat.h"
#include "store/Sesja.h"
#include <limits>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSplitter>

namespace tornel::app {

namespace {

/// Of a batch the screen shows the beginning; the file of the journal has all of it.
constexpr qint64 kPokazywanychWierszy = 500;

QString pytajOPlikDziennika(QWidget* rodzic) {
    return QFileDialog::getSaveFileName(rodzic, QStringLiteral("Dziennik zmian"),
                                        QStringLiteral("Dziennik zmian.csv"),
                                        QStringLiteral("Plik CSV (*.csv)"));
}

template <typename P>
P* nazwane(P* pole, const QString& nazwa, const QString& dostepna) {
    pole->setObjectName(nazwa);
    pole->setAccessibleName(dostepna);
    return pole;
}

/// Words of tables; thousands of entries name the same few.
using Nazwy = QHash<QString, QString>;

QStringList tekstyWpisu(const WpisDziennika& w, Nazwy& nazwy) {
    QStringList rzeczy;
    for (const QString& tabela : w.tabele) {
        QString& nazwa = nazwy[tabela];
        if (nazwa.isEmpty()) nazwa = NapisTabeli(tabela);
        rzeczy += nazwa;
    }
    return {w.dzien.isValid() ? FormatDaty(w.dzien) : QString(),
            w.czas,
            w.kto,
            w.czynnosc,
            w.wierszy > 0 ? QString::number(w.wierszy) : QString(),
            NapisStanu(w.stan),
            rzeczy.join(QStringLiteral(", "))};
}

/// The changes of an entry in the tables that the user may see.
QList<OpisanaZmiana> widoczneZmiany(const Otoczenie& o, qint64 id, qint64 najwiecej) {
    QList<PakietZmian> pakiety = ZmianyWpisu(o.sesja.cnPlace, id, najwiecej);
    pakiety.removeIf([&](const PakietZmian& p) { return !tabelaDozwolona(p.tabela, o.sesja.uzytkownik); });
    return OpiszZmiany(pakiety, o.skladniki);
}

} // namespace

frmDziennik::frmDziennik(Otoczenie& otoczenie, QWidget* rodzic, WybierzPlik wybierz)
    : Okno(QStringLiteral("frmDziennik"), rodzic), o_(otoczenie),
      wybierz_(wybierz ? std::move(wybierz) : pytajOPlikDziennika),
      dtOd_(nazwane(new PoleDaty, QStringLiteral("dtOd"), QStringLiteral("Od"))),
      dtDo_(nazwane(new PoleDaty, QStringLiteral("dtDo"), QStringLiteral("Do"))),
      cboKto_(nazwane(new QComboBox, QStringLiteral("cboKto"), QStringLiteral("Użytkownik"))),
      cboTabela_(nazwane(new QComboBox, QStringLiteral("cboTabela"), QStringLiteral("Dane"))),
      txtOsoba_(nazwane(new PoleTekstu, QStringLiteral("txtOsoba"), QStringLiteral("Pracownik nr"))),
      txtTekst_(nazwane(new PoleTekstu, QStringLiteral("txtTekst"), QStringLiteral("Tekst"))),
      labIle_(new QLabel), labZmiany_(new QLabel),
      cmdSzukaj_(przycisk(QStringLiteral("cmdSzukaj"), QStringLiteral("&Szukaj"))),
      cmdWyczysc_(przycisk(QStringLiteral("cmdWyczysc"), QStringLiteral("P&okaż wszystko"))) {
    setWindowTitle(QStringLiteral("Dziennik zmian"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* uklad = new QVBoxLayout(this);
    auto* gora = new QGridLayout;
    budujFiltr(*gora);
    uklad->addLayout(gora);
    uklad->addWidget(listy(), 1);
    uklad->addWidget(przyciski());
    resize(140 * Wyglad::kSiatka, 88 * Wyglad::kSiatka);
    pokaz({});
    wypelnijWybory();
    lvwWpisy_->setFocus();
}

void frmDziennik::budujFiltr(QGridLayout& uklad) {
    const auto dodaj = [&](int wiersz, int kolumna, const QString& napis, QWidget* pole) {
        auto* podpis = new QLabel(napis);
        podpis->setBuddy(pole);
        uklad.addWidget(podpis, wiersz, kolumna);
        uklad.addWidget(pole, wiersz, kolumna + 1);
    };
    dodaj(0, 0, QStringLiteral("O&d:"), dtOd_);
    dodaj(1, 0, QStringLiteral("Do d&nia:"), dtDo_);
    dodaj(0, 2, QStringLiteral("&Użytkownik:"), cboKto_);
    dodaj(1, 2, QStringLiteral("Pracownik n&r:"), txtOsoba_);
    dodaj(0, 4, QStringLiteral("D&ane:"), cboTabela_);
    dodaj(1, 4, QStringLiteral("&Tekst:"), txtTekst_);
    uklad.addWidget(cmdSzukaj_, 0, 6);
    uklad.addWidget(cmdWyczysc_, 1, 6);
    for (QWidget* w : {static_cast<QWidget*>(dtOd_), static_cast<QWidget*>(dtDo_)})
        w->setMaximumWidth(14 * Wyglad::kSiatka);
    uklad.setColumnStretch(3, 2);
    uklad.setColumnStretch(5, 3);
    uklad.setHorizontalSpacing(Wyglad::kSiatka);
    txtTekst_->setPlaceholderText(QStringLiteral("słowo z czynności albo wpisany tekst"));
    cmdSzukaj_->setDefault(true);
    cmdWyczysc_->setAutoDefault(false);
    connect(cmdSzukaj_, &QPushButton::clicked, this, &frmDziennik::szukaj);
    connect(cmdWyczysc_, &QPushButton::clicked, this, &frmDziennik::wyczyscFiltr);
}

QWidget* frmDziennik::listy() {
    lvwWpisy_ = new WidokListy({{QStringLiteral("DZIEŃ"), Qt::AlignLeft, Porzadek::Data},
                                {QStringLiteral("CZAS")},
                                {QStringLiteral("KTO")},
                                {QStringLiteral("CZYNNOŚĆ")},
                                {QStringLiteral("WIERSZY"), Qt::AlignRight},
                                {QStringLiteral("COFANIE")},
                                {QStringLiteral("DANE")}},
                               {9, 7, 10, 30, 7, 14, 23});
    nazwane(lvwWpisy_, QStringLiteral("lvwWpisy"), QStringLiteral("Wpisy dziennika"));
    lvwWpisy_->ustawPodpowiedz(
        QStringLiteral("Nie ma takich wpisów.\nPrzycisk „Pokaż wszystko” zdejmuje filtr."));
    lvwZmiany_ = new WidokListy({{QStringLiteral("DANE")},
                                 {QStringLiteral("WIERSZ")},
                                 {QStringLiteral("POLE")},
                                 {QStringLiteral("BYŁO")},
                                 {QStringLiteral("JEST")}},
                                {20, 24, 20, 18, 18});
    nazwane(lvwZmiany_, QStringLiteral("lvwZmiany"), QStringLiteral("Zmienione wartości"));
    lvwZmiany_->ustawPodpowiedz(QStringLiteral("Ten wpis nie zmienił danych, które wolno Ci oglądać."));
    connect(lvwWpisy_, &WidokListy::wybrano, this, &frmDziennik::pokazZmiany);
    labIle_->setObjectName(QStringLiteral("labIle"));
    labZmiany_->setObjectName(QStringLiteral("labZmiany"));
    const auto strona = [](QLabel* napis, QWidget* lista) {
        auto* pole = new QWidget;
        auto* uklad = new QVBoxLayout(pole);
        uklad->setContentsMargins(0, 0, 0, 0);
        uklad->addWidget(napis);
        uklad->addWidget(lista, 1);
        return pole;
    };
    auto* podzial = new QSplitter(Qt::Vertical);
    podzial->setObjectName(QStringLiteral("dzielnikWpisow"));
    podzial->setChildrenCollapsible(false);
    podzial->addWidget(strona(labIle_, lvwWpisy_));
    podzial->addWidget(strona(labZmiany_, lvwZmiany_));
    podzial->setStretchFactor(0, 3);
    podzial->setStretchFactor(1, 2);
    return podzial;
}

QWidget* frmDziennik::przyciski() {
    cmdCSV_ = przycisk(QStringLiteral("cmdCSV"), QStringLiteral("Zapisz &CSV..."));
    cmdDrukuj_ = przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("Dru&kuj"), u"drukuj");
    cmdPrzytnij_ = przycisk(QStringLiteral("cmdPrzytnij"), QStringLiteral("Pr&zytnij..."));
    auto* powrot = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    for (QPushButton* p : {cmdCSV_, cmdDrukuj_, cmdPrzytnij_, powrot}) p->setAutoDefault(false);
    connect(cmdCSV_, &QPushButton::clicked, this, &frmDziennik::zapiszCsv);
    connect(cmdDrukuj_, &QPushButton::clicked, this, &frmDziennik::drukuj);
    connect(cmdPrzytnij_, &QPushButton::clicked, this, &frmDziennik::przytnij);
    connect(powrot, &QPushButton::clicked, this, &QDialog::reject);
    cmdPrzytnij_->setVisible(maPrawo(Prawo::Administrator, o_.sesja.uzytkownik));
    return rzadPrzyciskow({cmdPrzytnij_, cmdCSV_, cmdDrukuj_, przyciskPomocy(), powrot});
}

void frmDziennik::wypelnijWybory() {
    cboKto_->addItem(QStringLiteral("wszyscy"), QString());
    cboTabela_->addItem(QStringLiteral("wszystkie"), QString());
    QSet<QString> osoby, wszystkie;
    QMap<QString, QString> tabele;
    for (const WpisDziennika& w : std::as_const(wpisy_)) {
        if (!w.kto.isEmpty()) osoby.insert(w.kto);
        for (const QString& tabela : w.tabele) {
            if (wszystkie.contains(tabela)) continue;
            wszystkie.insert(tabela);
            const TabelaDef* szablon = schemat::szablonTabeli(tabela.toStdString());
            if (!szablon || !tabelaDozwolona(tabela, o_.sesja.uzytkownik)) continue;
            const QString nazwa =
                QString::fromLatin1(szablon->nazwa.data(), static_cast<qsizetype>(szablon->nazwa.size()));
            tabele.insert(NapisTabeli(nazwa), nazwa);
        }
    }
    QStringList nazwy(osoby.begin(), osoby.end());
    nazwy.sort(Qt::CaseInsensitive);
    for (const QString& nazwa : std::as_const(nazwy)) cboKto_->addItem(nazwa, nazwa);
    for (auto i = tabele.begin(); i != tabele.end(); ++i) cboTabela_->addItem(i.key(), i.value());
}

std::optional<SzukaneWpisy> frmDziennik::filtr() {
    SzukaneWpisy wynik;
    for (const auto& [pole, dzien] : {std::pair{dtOd_, &wynik.od}, std::pair{dtDo_, &wynik.do_}}) {
        const auto wpisany = CzytajWpisanaDate(pole->text());
        const bool zly = !pole->text().trimmed().isEmpty() && !wpisany;
        UwagaPola::ustaw(*pole, zly ? QStringLiteral("To nie jest data dd-mm-rrrr.") : QString());
        if (zly) return std::nullopt;
        *dzien = wpisany.value_or(QDate());
    }
    if (const QString osoba = txtOsoba_->text().trimmed(); !osoba.isEmpty()) {
        const auto numer = CzytajLiczbe(osoba, 1, std::numeric_limits<int>::max());
        UwagaPola::ustaw(*txtOsoba_, numer ? QString() : QStringLiteral("To nie jest numer pracownika."));
        if (!numer) return std::nullopt;
        wynik.osoba = *numer;
    } else {
        UwagaPola::ustaw(*txtOsoba_, {});
    }
    wynik.kto = cboKto_->currentData().toString();
    wynik.tabela = cboTabela_->currentData().toString();
    wynik.tekst = txtTekst_->text().trimmed();
    return wynik;
}

void frmDziennik::szukaj() {
    if (const auto szukane = filtr()) pokaz(*szukane);
}

void frmDziennik::pokaz(const SzukaneWpisy& szukane) {
    const Klepsydra klepsydra;
    wpisy_ = WpisyDziennika(o_.sesja.cnPlace, szukane);
    wpisy_.removeIf([this](const WpisDziennika& w) { return !wpisDozwolony(w, o_.sesja.uzytkownik); });
    QList<WierszListy> wiersze;
    wiersze.reserve(wpisy_.size());
    Nazwy nazwy;
    for (const WpisDziennika& w : std::as_const(wpisy_)) wiersze.append({w.id, tekstyWpisu(w, nazwy)});
    const bool pusto = wiersze.isEmpty();
    labIle_->setText(QStringLiteral("Wpisów: %1").arg(wiersze.size()));
    lvwWpisy_->ustaw(std::move(wiersze), lvwWpisy_->wybrany());
    for (QPushButton* p : {cmdCSV_, cmdDrukuj_}) p->setEnabled(!pusto);
    if (!pusto) return;
    lvwZmiany_->ustaw({});
    labZmiany_->clear();
}

void frmDziennik::wyczyscFiltr() {
    for (QLineEdit* pole : {static_cast<QLineEdit*>(dtOd_), static_cast<QLineEdit*>(dtDo_),
                            static_cast<QLineEdit*>(txtOsoba_), static_cast<QLineEdit*>(txtTekst_)})
        pole->clear();
    cboKto_->setCurrentIndex(0);
    cboTabela_->setCurrentIndex(0);
    szukaj();
}

void frmDziennik::pokazZmiany(qint64 id) {
    const QList<OpisanaZmiana> zmiany = widoczneZmiany(o_, id, kPokazywanychWierszy);
    QList<WierszListy> wiersze;
    wiersze.reserve(zmiany.size());
    for (const OpisanaZmiana& z : zmiany)
        wiersze.append({wiersze.size(), {z.rzecz, z.wiersz, z.kolumna, z.stara, z.nowa}});
    const auto wpis = std::ranges::find(wpisy_, id, &WpisDziennika::id);
    const bool czesc = wpis != wpisy_.end() && wpis->wierszy > kPokazywanychWierszy;
    labZmiany_->setText(
        czesc ? QStringLiteral("Zmienione wartości (pierwsze %1 z %2 wierszy; wszystkie zapisuje "
                               "CSV)")
                    .arg(kPokazywanychWierszy)
                    .arg(wpis->wierszy)
              : QStringLiteral("Zmienione wartości: %1").arg(wiersze.size()));
    lvwZmiany_->ustaw(std::move(wiersze));
}

void frmDziennik::zapiszCsv() {
    QString plik = wybierz_(this);
    if (plik.isEmpty()) return;
    if (!plik.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) plik += QStringLiteral(".csv");
    const Klepsydra klepsydra;
    QByteArray csv = "DZIEN;CZAS;KTO;CZYNNOSC;TABELA;WIERSZ;POLE;BYLO;JEST\n";
    const auto linia = [&csv](const QStringList& pola) {
        for (qsizetype i = 0; i < pola.size(); ++i) csv += (i > 0 ? ";" : "") + PoleCsv(pola[i]).toUtf8();
        csv += '\n';
    };
    Nazwy nazwy;
    for (const WpisDziennika& w : std::as_const(wpisy_)) {
        const QStringList poczatek = tekstyWpisu(w, nazwy).mid(0, 4);
        const auto zmiany = widoczneZmiany(o_, w.id, std::numeric_limits<qint64>::max());
        for (const OpisanaZmiana& z : zmiany)
            linia(poczatek + QStringList{z.tabela, z.wiersz, z.kolumna, z.stara, z.nowa});
        if (zmiany.isEmpty()) linia(poczatek + QStringList(5));
    }
    ZapiszPlik(plik, csv);
    o_.rozmowa.komunikat(QStringLiteral("Plik ") + QDir::toNativeSeparators(plik) +
                             QStringLiteral(" został utworzony."),
                         Styl::Informacja);
}

void frmDziennik::drukuj() {
    PokazWydruk(UlozListe(*lvwWpisy_), o_.stale.DrukReszta ? Podglad::Nie : Podglad::Tak, o_.rozmowa, this);
}

void frmDziennik::przytnij() {
    const QList<OpisArchiwum> archiwa = ListaArchiwow(
        FolderArchiwow(o_.stale.ArchPath, FolderDanych(QCoreApplication::applicationDirPath())));
    const auto dobre = std::ranges::find_if(archiwa, [](const OpisArchiwum& a) { return a.uwaga.isEmpty(); });
    if (dobre == archiwa.end())
        return o_.rozmowa.komunikat(QStringLiteral("Nie ma archiwum, w którym dziennik by został. Najpierw "
                                                   "utwórz archiwum danych."),
                                    Styl::Wykrzyknik);
    const QDate ostatnie = dobre->data.date();
    frmInputData okno(frmInputData::Tryb::Data, QStringLiteral("Przytnij dziennik: wpisy przed dniem"),
                      QDate(ostatnie.year(), 1, 1), this);
    if (okno.exec() != Accepted) return;
    if (okno.data() > ostatnie)
        return o_.rozmowa.komunikat(
            QStringLiteral("Ostatnie archiwum jest z dnia %1. Przyciąć można tylko wpisy, które w nim są.")
                .arg(FormatDaty(ostatnie)),
            Styl::Wykrzyknik);
    if (!o_.rozmowa.pytanieUsuwajace(
            QStringLiteral("Czy na pewno usunąć z dziennika wpisy sprzed dnia %1 ? Tych czynności nie będzie "
                           "można cofnąć. Wpisy zostaną w archiwum „%2”.")
                .arg(FormatDaty(okno.data()), dobre->katalog)))
        return;
    const qint64 ile = PrzytnijDziennik(o_.sesja.cnPlace, okno.data());
    szukaj();
    o_.rozmowa.komunikat(QStringLiteral("Usunięto wpisów: %1.").arg(ile), Styl::Informacja);
}

} // namespace tornel::app
