#include "zus/OdczytKedu.h"
#include "common/Blad.h"
#include "common/PolaKedu.h"
#include "zus/PolaKedu.h"
#include <algorithm>
#include <optional>
#include <QFile>

namespace tornel::zus {

namespace {

/// More than any line of the program, so that a file without line ends shows no more than that of it.
constexpr qsizetype kNajdluzszaLinia = 400;
/// A file full of faults tells the first ones.
constexpr qsizetype kNajwiecejUwag = 20;

/// "NAME" of "<NAME>", "/NAME" of "</NAME>"; empty for a line that is no tag.
QByteArrayView znacznik(QByteArrayView linia) {
    const bool jest = linia.size() > 2 && linia.front() == '<' && linia.back() == '>' && linia.at(1) != '!';
    return jest ? linia.sliced(1, linia.size() - 2) : QByteArrayView();
}

int szerokosc(const PoleKedu& pole) {
    switch (pole.pisarz) {
    case Pisarz::Wyksztalcenie:
        return 2;
    case Pisarz::Krzyzyk:
    case Pisarz::BezKrzyzyka:
    case Pisarz::Rowny:
    case Pisarz::Kolejny:
    case Pisarz::Znacznik:
        return 1;
    default:
        return pole.szer;
    }
}

QString data(const QString& cyfry) {
    const bool jest = cyfry.size() == 8 && std::ranges::all_of(cyfry, [](QChar z) { return z.isDigit(); });
    return jest ? cyfry.left(2) + QLatin1Char('-') + cyfry.mid(2, 2) + QLatin1Char('-') + cyfry.mid(4)
                : cyfry.trimmed();
}

QString kwota(const QString& cyfry) {
    bool liczba = false;
    const qint64 setne = QString(cyfry).remove(QLatin1Char('-')).toLongLong(&liczba);
    if (!liczba) return cyfry.trimmed();
    const QString znak = cyfry.contains(QLatin1Char('-')) ? QStringLiteral("-") : QString();
    return QStringLiteral("%1%2,%3").arg(znak).arg(setne / 100).arg(setne % 100, 2, 10, QLatin1Char('0'));
}

QString poLudzku(const PoleKedu& pole, const QString& tekst) {
    switch (pole.pisarz) {
    case Pisarz::Data:
        return data(tekst);
    case Pisarz::Okres: {
        const QString od = data(tekst.left(8)), dokad = data(tekst.mid(8));
        return od.isEmpty() && dokad.isEmpty() ? QString() : QStringLiteral("%1 do %2").arg(od, dokad);
    }
    case Pisarz::Kwota:
        return kwota(tekst);
    default:
        return tekst.trimmed();
    }
}

/// The fields that stand in a block of so many lines, or nothing when there is no such block. A row of a
/// report about somebody without data lacks the lines about him.
std::optional<QList<const PoleKedu*>> polaBloku(const BlokKedu& blok, qsizetype linii) {
    QList<const PoleKedu*> wszystkie, bezwarunkowe;
    for (const PoleKedu& p : blok.pola) {
        wszystkie.append(&p);
        if (!p.warunek) bezwarunkowe.append(&p);
    }
    for (const auto& pola : {wszystkie, bezwarunkowe})
        if (std::ranges::count_if(pola, [](const auto* p) { return !p->wTejLinii; }) == linii) return pola;
    return std::nullopt;
}

/// Takes the lines one by one; outside a document, in a document, or in a block of one.
class Rozbior {
public:
    void linia(QByteArrayView linia, qsizetype poczatek, qsizetype koniec) {
        ++nr_;
        const QByteArrayView nazwa = znacznik(linia);
        if (wBloku_)
            wBloku(nazwa, poczatek, koniec);
        else if (wDokumencie_)
            wDokumencie(nazwa, koniec);
        else
            pozaDokumentem(nazwa);
    }
    /// What the file lacks at its end.
    void zakoncz() {
        if (!kolekcja_)
            uwaga(QStringLiteral("Plik nie jest kolekcją dokumentów ubezpieczeniowych."));
        else if (!koniec_ || wDokumencie_ || wBloku_)
            uwaga(QStringLiteral("Kolekcja urywa się przed końcem."));
    }

    QList<DokumentOdczytany> dokumenty;
    QStringList uwagi;

private:
    [[nodiscard]] static QString slowo(QByteArrayView nazwa) {
        return zWindows1250(nazwa.first(std::min(nazwa.size(), kNajdluzszaLinia)));
    }
    void uwaga(const QString& tekst) {
        if (uwagi.size() < kNajwiecejUwag) uwagi.append(tekst);
    }
    void uwagaOLinii(const QString& tekst) { uwaga(QStringLiteral("linia %1: %2").arg(nr_).arg(tekst)); }

    void pozaDokumentem(QByteArrayView nazwa) {
        kolekcja_ = kolekcja_ || nazwa == "KEDU";
        koniec_ = koniec_ || nazwa == "/KEDU";
        // The wrapper "ZUSxxx.DP" says nothing that "ZUSxxx" does not.
        if (!nazwa.startsWith("ZUS") || nazwa.contains('.')) return;
        const QString kod = slowo(nazwa.sliced(3));
        znany_ = znajdzDokument(kod);
        dokumenty.append({kod, znany_ ? znany_->opis.toString() : QString(), {}});
        zamkniecie_ = '/' + nazwa.toByteArray();
        wDokumencie_ = true;
    }
    void wDokumencie(QByteArrayView nazwa, qsizetype koniec) {
        if (nazwa.isEmpty()) return;
        if (nazwa == zamkniecie_) {
            wDokumencie_ = false;
        } else if (nazwa.startsWith('/')) {
            uwagaOLinii(QStringLiteral("niespodziewany koniec „%1”").arg(slowo(nazwa.sliced(1))));
            wDokumencie_ = nazwa != "/KEDU";
        } else {
            const QString nazwaBloku = slowo(nazwa);
            const BlokKedu* znany = znany_ ? znajdzBlok(*znany_, nazwaBloku) : nullptr;
            dokumenty.last().bloki.append(
                {nazwaBloku, znany ? znany->opis.toString() : QString(), znany, koniec, koniec});
            wBloku_ = true;
        }
    }
    void wBloku(QByteArrayView nazwa, qsizetype poczatek, qsizetype koniec) {
        BlokOdczytany& blok = dokumenty.last().bloki.last();
        if (!nazwa.startsWith('/')) {
            blok.koniec = koniec;
            return;
        }
        blok.koniec = poczatek;
        wBloku_ = false;
        if (slowo(nazwa.sliced(1)) != blok.nazwa)
            uwagaOLinii(
                QStringLiteral("blok „%1” kończy się jako „%2”").arg(blok.nazwa, slowo(nazwa.sliced(1))));
        if (nazwa == zamkniecie_) wDokumencie_ = false;
    }

    int nr_ = 0;
    bool kolekcja_ = false, koniec_ = false, wDokumencie_ = false, wBloku_ = false;
    const DokumentKedu* znany_ = nullptr; ///< the one whose blocks come
    QByteArray zamkniecie_;
};

} // namespace

OdczytKedu OdczytKedu::zPliku(const QString& plik) {
    QFile zrodlo(plik);
    if (!zrodlo.open(QIODevice::ReadOnly))
        throw Blad(QStringLiteral("Nie można odczytać pliku „%1”: %2.").arg(plik, zrodlo.errorString()));
    return OdczytKedu(zrodlo.readAll());
}

OdczytKedu::OdczytKedu(QByteArray tresc) : tresc_(std::move(tresc)) {
    Rozbior rozbior;
    for (qsizetype od = 0; od < tresc_.size();) {
        const qsizetype lf = tresc_.indexOf('\n', od);
        const qsizetype nastepna = lf < 0 ? tresc_.size() : lf + 1;
        QByteArrayView linia = QByteArrayView(tresc_).sliced(od, (lf < 0 ? nastepna : lf) - od);
        if (linia.endsWith('\r')) linia.chop(1);
        rozbior.linia(linia, od, nastepna);
        od = nastepna;
    }
    rozbior.zakoncz();
    dokumenty_ = std::move(rozbior.dokumenty);
    uwagi_ = std::move(rozbior.uwagi);
}

QStringList OdczytKedu::linie(const BlokOdczytany& blok) const {
    QStringList wynik;
    for (qsizetype od = blok.poczatek; od < blok.koniec;) {
        qsizetype lf = tresc_.indexOf('\n', od);
        if (lf < 0 || lf >= blok.koniec) lf = blok.koniec;
        QByteArrayView linia = QByteArrayView(tresc_).sliced(od, lf - od);
        if (linia.endsWith('\r')) linia.chop(1);
        wynik.append(zWindows1250(linia.first(std::min(linia.size(), kNajdluzszaLinia))));
        od = lf + 1;
    }
    return wynik;
}

QList<PoleOdczytane> OdczytKedu::pola(const BlokOdczytany& blok) const {
    const QStringList teksty = linie(blok);
    const auto znane = blok.znany ? polaBloku(*blok.znany, teksty.size()) : std::nullopt;
    QList<PoleOdczytane> wynik;
    if (!znane) {
        for (const QString& tekst : teksty)
            wynik.append({QStringLiteral("linia %1").arg(wynik.size() + 1), tekst.trimmed()});
        return wynik;
    }
    qsizetype nrLinii = -1, miejsce = 0;
    for (qsizetype i = 0; i < znane->size(); ++i) {
        const PoleKedu& p = *znane->at(i);
        if (!p.wTejLinii) {
            ++nrLinii;
            miejsce = 0;
        }
        const QString& linia = teksty.at(nrLinii);
        // The last field of a line takes all of it, as a counter may be wider than its zeros.
        const bool ostatnie = i + 1 == znane->size() || !znane->at(i + 1)->wTejLinii;
        const QString tekst = ostatnie ? linia.mid(miejsce) : linia.mid(miejsce, szerokosc(p));
        miejsce += szerokosc(p);
        wynik.append({p.napis.toString(), poLudzku(p, tekst), p.napis.isEmpty()});
    }
    return wynik;
}

QString OdczytKedu::osoba(const BlokOdczytany& blok) const {
    if (!blok.znany) return {};
    const bool oOsobie = std::ranges::any_of(
        blok.znany->pola, [](const PoleKedu& p) { return p.napis == pola::kNapisImienia; });
    if (!oOsobie) return {};
    QString nazwisko, imie;
    for (const PoleOdczytane& p : pola(blok)) {
        if (p.napis == pola::kNapisNazwiska && nazwisko.isEmpty()) nazwisko = p.wartosc;
        if (p.napis == pola::kNapisImienia && imie.isEmpty()) imie = p.wartosc;
    }
    return QStringLiteral("%1 %2").arg(nazwisko, imie).trimmed();
}

QString OdczytKedu::osoba(const DokumentOdczytany& dokument) const {
    const DokumentKedu* znany = znajdzDokument(dokument.kod);
    if (!znany || (znany->petla != Petla::Pracownik && znany->petla != Petla::Rodzina)) return {};
    for (const BlokOdczytany& blok : dokument.bloki)
        if (QString kto = osoba(blok); !kto.isEmpty()) return kto;
    return {};
}

} // namespace tornel::zus
