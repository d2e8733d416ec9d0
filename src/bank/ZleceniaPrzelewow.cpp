#include "bank/ZleceniaPrzelewow.h"
#include "common/Liczby.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QHash>

namespace tornel::bank {

namespace {

const QString kBrakKwoty =
    QStringLiteral("Nie można wydrukować przelewu, ponieważ nie ustalono kwoty do przelewu.");

DoPrzelania dlaOsob(const Wyplaty& wyplaty, const ZrodloPrzelewow& z) {
    if (!z.umowy) {
        QList<Wyplata> lista = wyplaty.zListy(z.symbol, z.numery);
        if (z.lista) lista.removeIf([&](const Wyplata& w) { return w.lista != *z.lista; });
        return {lista, {}, lista.isEmpty() ? kBrakKwoty : QString()};
    }
    if (z.umowa) {
        const auto jedna = wyplaty.zUmowy(*z.umowy, *z.umowa);
        if (!jedna) return {{}, {}, kBrakKwoty};
        return {{*jedna}, z.umowy->tytulJednego.toString(), {}};
    }
    const QList<Wyplata> lista = wyplaty.zUmow(*z.umowy, z.od, z.dokad);
    return {lista, z.umowy->tytulSerii.toString(),
            lista.isEmpty() ? z.umowy->brakUmow.toString() : QString()};
}

DoPrzelania dlaUrzedow(const Wyplaty& wyplaty, const ZrodloPrzelewow& z) {
    if (!z.umowy) {
        const QList<Wyplata> lista = wyplaty.podatekListy(z.symbol);
        return {lista, tytulPodatku(), lista.isEmpty() ? QStringLiteral("Brak kwoty z podatku.") : QString()};
    }
    const auto podatek = wyplaty.podatekUmow(*z.umowy, z.od, z.dokad);
    if (!podatek) return {{}, {}, z.umowy->brakUmow.toString()};
    return {*podatek, tytulPodatku(), podatek->isEmpty() ? z.umowy->brakPodatku.toString() : QString()};
}

const RodzajWykonania& rodzajWykonania(KomuPrzelew komu) {
    return komu == KomuPrzelew::Osoby ? wykonanie::Przelew : wykonanie::PrzelewPodatku;
}

/// The month of the payments: of the list, or of the contracts whose tax is paid. Contracts paid one by one
/// are found by their numbers and belong to the month in which the transfer is made.
RokMies miesiacZrodla(const Otoczenie& o, KomuPrzelew komu, const ZrodloPrzelewow& z) {
    if (!z.umowy) return o.sesja.miesiac();
    return komu == KomuPrzelew::Urzedy ? RokMies::dnia(z.dokad) : RokMies{};
}

/// What tells one payment of a source from another.
struct KluczWyplaty {
    qint64 komu, dokument;
    QString lista;
    friend bool operator==(const KluczWyplaty&, const KluczWyplaty&) = default;
    friend size_t qHash(const KluczWyplaty& k, size_t ziarno = 0) {
        return qHashMulti(ziarno, k.komu, k.dokument, k.lista);
    }
};

/// "wydrukowano 10-04-2001", or with how many of all they are.
QString zLiczba(const RodzajWykonania& rodzaj, const QString& napis, qsizetype ile, qsizetype wszystkich) {
    if (ile == wszystkich) return napis;
    return QString(napis).replace(
        rodzaj.slowo.toString(),
        QStringLiteral("%1 %2 z %3, ostatnio").arg(rodzaj.slowo).arg(ile).arg(wszystkich));
}

} // namespace

QString NazwaZrodla(const ZrodloPrzelewow& z) {
    if (!z.umowy) return {};
    const std::string_view nazwa = z.umowy->tabela->nazwa;
    return QString::fromLatin1(nazwa.data(), static_cast<qsizetype>(nazwa.size()));
}

DoPrzelania ZnajdzDoPrzelania(Otoczenie& otoczenie, KomuPrzelew komu, const ZrodloPrzelewow& zrodlo) {
    const Wyplaty wyplaty(otoczenie);
    return komu == KomuPrzelew::Osoby ? dlaOsob(wyplaty, zrodlo) : dlaUrzedow(wyplaty, zrodlo);
}

JuzWydrukowane SprawdzWydrukowane(Otoczenie& otoczenie, KomuPrzelew komu, const ZrodloPrzelewow& zrodlo,
                                  const QList<Wyplata>& wyplaty) {
    const RodzajWykonania& rodzaj = rodzajWykonania(komu);
    SzukaneWykonania szukane{.rodzaj = rodzaj.kod.toString(), .zrodlo = NazwaZrodla(zrodlo)};
    if (const RokMies m = miesiacZrodla(otoczenie, komu, zrodlo); m.mies > 0) szukane.miesiac = m;
    QHash<KluczWyplaty, QList<Wykonanie>> wgWyplaty;
    for (const Wykonanie& w : Wykonane(otoczenie.sesja).szukaj(szukane))
        wgWyplaty[{w.komu, w.dokument, w.lista}].append(w);
    JuzWydrukowane wynik;
    QList<Wykonanie> znalezione;
    qsizetype wydrukowanych = 0, wyslanych = 0;
    for (const Wyplata& w : wyplaty) {
        const auto znane = wgWyplaty.constFind({w.komu, w.dokument, w.lista});
        const bool wydrukowana = znane != wgWyplaty.constEnd();
        if (wydrukowana) znalezione += *znane;
        wydrukowanych += wydrukowana;
        wyslanych += w.wyslana;
        wynik.ktore.append(wydrukowana || w.wyslana);
    }
    QStringList napisy;
    if (wydrukowanych > 0)
        napisy += zLiczba(rodzaj, NapisWykonania(rodzaj, znalezione), wydrukowanych, wyplaty.size());
    if (wyslanych > 0) {
        napisy += QStringLiteral("wysłano do banku w pliku");
        if (wyplaty.size() > 1)
            napisy.last() += QStringLiteral(" %1 z %2").arg(wyslanych).arg(wyplaty.size());
    }
    wynik.napis = napisy.join(QStringLiteral("; "));
    return wynik;
}

void ZapamietajWydrukowane(Otoczenie& otoczenie, KomuPrzelew komu, const ZrodloPrzelewow& zrodlo,
                           const QList<Przelew>& przelewy, const QDateTime& kiedy, const QString& plik) {
    QList<Wykonanie> wykonania;
    for (const Przelew& p : przelewy)
        wykonania.append({.rodzaj = rodzajWykonania(komu).kod.toString(),
                          .miesiac = miesiacZrodla(otoczenie, komu, zrodlo),
                          .zrodlo = NazwaZrodla(zrodlo),
                          .lista = p.za.lista,
                          .komu = p.za.komu,
                          .dokument = p.za.dokument,
                          .kwota = p.Kwota,
                          .plik = plik,
                          .opis = QStringLiteral("Przelew: ") + (p.nazodb + p.nazodbcd).trimmed()});
    Wykonane(otoczenie.sesja).dopisz(wykonania, kiedy);
}

} // namespace tornel::bank
