#include "app/frmLogLista.h"
#include "app/frmLogNowy.h"
#include "okna/Wyglad.h"
#include <QLabel>

namespace tornel::app {

namespace {

enum PoleUzytkownika { Nazwa, Haslo, Kadry, Place };

/// The fields of one user.
class ZrodloUzytkownika final : public ZrodloPol {
public:
    explicit ZrodloUzytkownika(DaneUzytkownika& dane) : dane_(dane) {}

    Wartosc czytaj(const Pole& pole) const override {
        const auto flaga = [](bool tak) { return tak ? QStringLiteral("T") : QStringLiteral("N"); };
        switch (pole.klucz) {
        case Nazwa:
            return dane_.nazwa;
        case Haslo:
            return dane_.haslo;
        case Kadry:
            return flaga(dane_.kadry);
        default:
            return flaga(dane_.place);
        }
    }
    void zapisz(const Pole& pole, const Wartosc& wartosc) override {
        const QString& tekst = std::get<QString>(wartosc);
        switch (pole.klucz) {
        case Nazwa:
            dane_.nazwa = tekst;
            break;
        case Haslo:
            dane_.haslo = tekst;
            break;
        case Kadry:
            dane_.kadry = tekst == QLatin1String("T");
            break;
        default:
            dane_.place = tekst == QLatin1String("T");
        }
    }

private:
    DaneUzytkownika& dane_;
};

Pole pole(const QString& nazwa, const QString& podpis, PoleUzytkownika klucz, Rodzaj rodzaj) {
    Pole p{.nazwa = nazwa, .podpis = podpis, .kolumna = {}, .rodzaj = rodzaj};
    p.klucz = klucz;
    p.rozmiar = rodzaj == Rodzaj::Tekst ? ListaUzytkownikow::kDlugosc : 0;
    return p;
}

OpisListyPol opis() {
    OpisListyPol o;
    o.nazwa = QStringLiteral("frmLogLista");
    o.tytul = QStringLiteral("Lista użytkowników");
    o.kolumny = {{QStringLiteral("UŻYTKOWNIK")}};
    o.udzialy = {100};
    o.szukaj = QStringLiteral("Szukaj: nazwa użytkownika");
    o.kolumnaNazwy = 0;
    o.nowy = QStringLiteral("&Dodaj użytkownika");
    o.usun = QStringLiteral("&Usuń użytkownika");
    o.powrot = QStringLiteral("&Zamknij");
    o.grupy = {
        {QStringLiteral("Użytkownik"),
         {pole(QStringLiteral("Text2"), QStringLiteral("Nazwa użytkownika"), Nazwa, Rodzaj::Tekst),
          pole(QStringLiteral("Text3"), QStringLiteral("Hasło użytkownika"), Haslo, Rodzaj::Tekst)}},
        {QStringLiteral("Uprawnienia użytkownika"),
         {pole(QStringLiteral("chkKadry"), QStringLiteral("Kadry"), Kadry, Rodzaj::Flaga),
          pole(QStringLiteral("chkPlace"), QStringLiteral("Płace"), Place, Rodzaj::Flaga)}},
    };
    return o;
}

} // namespace

frmLogLista::frmLogLista(Otoczenie& otoczenie, QWidget* rodzic)
    : frmLogLista(otoczenie, std::make_unique<DaneUzytkownika>(), rodzic) {}

frmLogLista::frmLogLista(Otoczenie& otoczenie, std::unique_ptr<DaneUzytkownika> dane, QWidget* rodzic)
    : frmListaPol(otoczenie.rozmowa, std::make_unique<ZrodloUzytkownika>(*dane), opis(), rodzic),
      lista_(otoczenie), dane_(std::move(dane)),
      labAdm_(Wyglad::baner(QStringLiteral("ADMINISTRATOR"), this)) {
    labAdm_->setObjectName(QStringLiteral("labAdm"));
    dodaj(labAdm_);
    auto* uwaga = new QLabel(QStringLiteral("Użytkownik bez żadnego uprawnienia staje się administratorem."));
    uwaga->setProperty("podpowiedz", true);
    uwaga->setWordWrap(true);
    dodaj(uwaga);
    Wczytaj();
}

QList<qint64> frmLogLista::numery() {
    nazwy_ = lista_.Wczytaj();
    QList<qint64> wynik;
    for (qint64 i = 0; i < nazwy_.size(); ++i) wynik.append(i);
    return wynik;
}

bool frmLogLista::przejdz(qint64 id) {
    const auto dane = id >= 0 && id < nazwy_.size() ? lista_.Wypisz(nazwy_.at(id)) : std::nullopt;
    *dane_ = dane.value_or(DaneUzytkownika{});
    return dane.has_value();
}

bool frmLogLista::zapisz(qint64 id) {
    if (!lista_.Wpisz(nazwy_.at(id), *dane_)) return false;
    nazwy_[id] = dane_->nazwa.trimmed();
    return true;
}

std::optional<qint64> frmLogLista::utworz() {
    frmLogNowy okno(lista_, this);
    if (okno.exec() != Accepted) return std::nullopt;
    return lista_.Wczytaj().indexOf(okno.nazwa());
}

void frmLogLista::pokazano(qint64 id) {
    if (id >= 0) Blokada(dane_->administrator);
}

void frmLogLista::Blokada(bool administrator) {
    labAdm_->setVisible(administrator);
    wiazanie().blokuj(administrator);
}

} // namespace tornel::app
