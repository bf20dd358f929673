// What the demo jukebox remembers of its guests, and what the charts say.
#ifndef SONOTIK_TOOLS_DEMO_POPULAR_H_
#define SONOTIK_TOOLS_DEMO_POPULAR_H_

#include <QDate>
#include <QString>

namespace sonotik::demo {

// Puts into the demo's folder, each only where it isn't there: User_history.dat with the plays of
// the last evenings, the chart of this month and, resolved, of the month before, and a small
// animation that goes with them. Throws DemoFailure.
void MakePopular(const QString& root, const QDate& today);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_POPULAR_H_
