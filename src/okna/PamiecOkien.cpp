#include "okna/PamiecOkien.h"
#include "okna/WidokListy.h"
#include <algorithm>
#include <QComboBox>
#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QTabWidget>

namespace tornel::okna::pamiecOkien {

namespace {

constexpr auto kPamietana = "pamietana";

QSettings ustawienia() {
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Tornel"), QStringLiteral("Tornel")};
}

/// A list's columns: the shares, their order and choice, and by which of them the rows are ordered.
QString kluczKolumn(const WidokListy& lista) { return lista.objectName() + QStringLiteral("/kolumny"); }
QString kluczUkladu(const WidokListy& lista) { return lista.objectName() + QStringLiteral("/uklad"); }
QString kluczPorzadku(const WidokListy& lista) { return lista.objectName() + QStringLiteral("/porzadek"); }

QStringList naTeksty(const QList<int>& liczby) {
    QStringList wynik;
    for (const int liczba : liczby) wynik.append(QString::number(liczba));
    return wynik;
}

QList<int> naLiczby(const QStringList& teksty) {
    QList<int> wynik;
    for (const QString& tekst : teksty) wynik.append(tekst.toInt());
    return wynik;
}

void zapamietajListe(QSettings& pamiec, const WidokListy& lista) {
    pamiec.setValue(kluczKolumn(lista), naTeksty(lista.udzialy()));
    pamiec.setValue(kluczUkladu(lista), naTeksty(lista.ukladKolumn()));
    const int kolumna = lista.header()->sortIndicatorSection();
    const bool malejaco = lista.header()->sortIndicatorOrder() == Qt::DescendingOrder;
    if (kolumna < 0)
        pamiec.remove(kluczPorzadku(lista));
    else
        pamiec.setValue(kluczPorzadku(lista), malejaco ? -kolumna - 1 : kolumna + 1);
}

void przywrocListe(const QSettings& pamiec, WidokListy& lista) {
    const QStringList udzialy = pamiec.value(kluczKolumn(lista)).toStringList();
    if (!udzialy.isEmpty()) lista.ustawUdzialy(naLiczby(udzialy));
    lista.ustawUkladKolumn(naLiczby(pamiec.value(kluczUkladu(lista)).toStringList()));
    const int porzadek = pamiec.value(kluczPorzadku(lista)).toInt();
    if (porzadek == 0 || std::abs(porzadek) > lista.lista().columnCount()) return;
    lista.sortuj(std::abs(porzadek) - 1, porzadek < 0 ? Qt::DescendingOrder : Qt::AscendingOrder);
}

template <typename W, typename O>
QList<W*> nazwane(O& okno) {
    QList<W*> wynik;
    for (W* w : okno.template findChildren<W*>())
        if (!w->objectName().isEmpty() && w->window() == &okno) wynik.append(w);
    return wynik;
}

} // namespace

void pamietajZakladke(QWidget& zakladki) { zakladki.setProperty(kPamietana, true); }
void pamietajWybor(QWidget& wybor) { wybor.setProperty(kPamietana, true); }

void zapamietaj(const QWidget& okno) {
    if (okno.objectName().isEmpty()) return;
    QSettings pamiec = ustawienia();
    pamiec.beginGroup(okno.objectName());
    pamiec.setValue(QStringLiteral("okno"), okno.saveGeometry());
    for (const auto* dzielnik : nazwane<QSplitter>(okno))
        pamiec.setValue(dzielnik->objectName(), dzielnik->saveState());
    for (const auto* lista : nazwane<WidokListy>(okno)) zapamietajListe(pamiec, *lista);
    for (const auto* zakladki : nazwane<QTabWidget>(okno))
        if (zakladki->property(kPamietana).toBool())
            pamiec.setValue(zakladki->objectName(), zakladki->currentIndex());
    for (const auto* wybor : nazwane<QComboBox>(okno))
        if (wybor->property(kPamietana).toBool()) pamiec.setValue(wybor->objectName(), wybor->currentData());
}

void przywroc(QWidget& okno) {
    if (okno.objectName().isEmpty()) return;
    QSettings pamiec = ustawienia();
    pamiec.beginGroup(okno.objectName());
    okno.restoreGeometry(pamiec.value(QStringLiteral("okno")).toByteArray());
    for (auto* dzielnik : nazwane<QSplitter>(okno))
        dzielnik->restoreState(pamiec.value(dzielnik->objectName()).toByteArray());
    for (auto* lista : nazwane<WidokListy>(okno)) przywrocListe(pamiec, *lista);
    for (auto* zakladki : nazwane<QTabWidget>(okno)) {
        const int nr = pamiec.value(zakladki->objectName(), -1).toInt();
        if (zakladki->property(kPamietana).toBool() && nr >= 0 && nr < zakladki->count())
            zakladki->setCurrentIndex(nr);
    }
    for (auto* wybor : nazwane<QComboBox>(okno)) {
        const int nr = wybor->findData(pamiec.value(wybor->objectName()));
        if (wybor->property(kPamietana).toBool() && nr >= 0) wybor->setCurrentIndex(nr);
    }
}

QString ustawienie(const QString& nazwa) { return ustawienia().value(nazwa).toString(); }

void ustaw(const QString& nazwa, const QString& wartosc) { ustawienia().setValue(nazwa, wartosc); }

} // namespace tornel::okna::pamiecOkien
