// What the demo jukebox has for the hours in which nobody touches it.
#ifndef SONOTIK_TOOLS_DEMO_ALONE_H_
#define SONOTIK_TOOLS_DEMO_ALONE_H_

#include <QDate>
#include <QString>

namespace sonotik::demo {

// Puts into the demo's folder, each only where it isn't there: songfacts.dat, pictures in
// "attract", two jingles in "jingles", and a file of the calendar for the last day of this year
// with a picture of its own. Throws DemoFailure.
void MakeAlone(const QString& root, const QDate& today);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_ALONE_H_
