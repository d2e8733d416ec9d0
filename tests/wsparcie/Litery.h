// Whether all that is written in a menu or on buttons has its letter, and nobody that of another.
#pragma once
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>
#include <map>
#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QString>

namespace tornel::testy {

inline QString bezLitery(QString napis) { return napis.remove(u'&'); }
inline QString mnemonik(const QString& napis) { return QKeySequence::mnemonic(napis).toString(); }

/// All entries of the menus and their sub-menus that can be seen; one submenu has letters of its own.
inline void sprawdzLiteryMenu(const QList<QAction*>& wejscia) {
    std::map<QString, QString> czyje;
    for (const QAction* wejscie : wejscia) {
        if (wejscie->isSeparator() || !wejscie->isVisible()) continue;
        const QString litera = mnemonik(wejscie->text());
        EXPECT_FALSE(litera.isEmpty()) << wejscie->text().toStdString() << " has no letter";
        const auto [inny, nowa] = czyje.emplace(litera, wejscie->text());
        EXPECT_TRUE(nowa) << wejscie->text().toStdString() << " and " << inny->second.toStdString();
        if (wejscie->menu()) sprawdzLiteryMenu(wejscie->menu()->actions());
    }
}

} // namespace tornel::testy
