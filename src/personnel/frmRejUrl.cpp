#include "personnel/frmRejUrl.h"
#include "personnel/frmData.h"
#include "store/Sesja.h"

namespace tornel::personnel {

using schemat::URL;

namespace {

enum Obliczane { Przysluguje, Wykorzystano };

QList<Pozycja> pozycjeRodzaju() {
    QList<Pozycja> wynik;
    for (const QStringView nazwa : RodzajeUrlopu())
        wynik.append({static_cast<qint64>(wynik.size()), nazwa.toString()});
    return wynik;
}

Pole obliczane(const QString& nazwa, const QString& podpis, Obliczane klucz) {
    Pole pole{nazwa, podpis, {}, Rodzaj::Liczba, Dostep::Odczyt};
    pole.klucz = klucz;
    return pole;
}

QList<Pole> polaUrlopu() {
    Pole kwota{QStringLiteral("txtKwota"), QStringLiteral("Kwota:"), URL("Kwota"), Rodzaj::Kwota};
    kwota.grosze = Grosze::Round;
    return {
        {QStringLiteral("cboRodzaj"), QStringLiteral("Rodzaj:"), URL("Rodzaj"), Rodzaj::Wybor, Dostep::Edycja,
         pozycjeRodzaju()},
        {QStringLiteral("txtIlDni"), QStringLiteral("Ilość dni:"), URL("il_dni"), Rodzaj::Liczba},
        kwota,
        {QStringLiteral("txtKodZUS"), QStringLiteral("Kod ZUS:"), URL("KodZUS")},
        {QStringLiteral("txtKodSwPrz"), QStringLiteral("Kod świadczenia/przerwy:"), URL("kodswprz")},
    };
}

OpisListyPol opisUrlopow() {
    OpisListyPol o = frmRejestr::opisListy();
    o.nazwa = QStringLiteral("frmRejUrl");
    o.tytul = QStringLiteral("Urlopy i inne przerwy");
    o.pustaLista = QStringLiteral("Nie ma jeszcze żadnego urlopu.\nPrzycisk „Nowy” rejestruje pierwszy.");
    o.grupy = {
        frmRejestr::grupaOkresu(
            URL,
            {obliczane(QStringLiteral("txtPrzysluguje"), QStringLiteral("Przysługuje dni:"), Przysluguje)},
            {obliczane(QStringLiteral("txtWykorzystano"), QStringLiteral("Wykorzystano w roku:"),
                       Wykorzystano)}),
        {QStringLiteral("URLOP"), polaUrlopu(), 2},
        {QStringLiteral("INFORMACJE OPISOWE"),
         {{QStringLiteral("txtInfOpis"), QString(), URL("inf_opis"), Rodzaj::Notatka}}},
    };
    return o;
}

} // namespace

frmRejUrl::frmRejUrl(Otoczenie& otoczenie, QWidget* rodzic)
    : frmRejUrl(otoczenie, rodzic, std::make_shared<RejestrUrlopow>(otoczenie)) {
    Wczytaj();
}

frmRejUrl::frmRejUrl(Otoczenie& otoczenie, QWidget* rodzic, std::shared_ptr<RejestrUrlopow> urlopy)
    : frmRejestr(
          otoczenie, urlopy,
          [urlopy](int klucz) -> Wartosc {
              const Recordset& rs = urlopy->tabela();
              const qint64 prcId = rs.liczba(URL("prc_id"));
              return klucz == Przysluguje ? urlopy->PrzyslugujeDni(prcId)
                                          : urlopy->WykorzystaneDni(prcId, rs.data(URL("Data")).year());
          },
          opisUrlopow(), rodzic),
      urlopy_(std::move(urlopy)) {}

std::optional<qint64> frmRejUrl::Zarejestruj(qint64 prcId, const frmData& dane) {
    return urlopy_->Zarejestruj({prcId, dane.zakres(), static_cast<RodzajUrlopu>(dane.rodzaj())});
}

} // namespace tornel::personnel
