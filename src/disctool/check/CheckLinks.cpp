// Finds links that only work where the disc is made.

#include "disctool/check/CheckJob.h"
#include "disctool/disc/DiscWalk.h"

namespace orvanta {

void CheckLinks(CheckJob& job) {
  for (const std::string& link : LinksOff(job.disc))
    job.findings.Warning({job.disc.Place(link), 0}, "link-off-the-disc",
                         Translated("the link leads off the disc, and a copy of it will lead nowhere"));
  for (const std::string& special : SpecialsOf(job.disc))
    job.findings.Warning({job.disc.Place(special), 0}, "special-file",
                         Translated("this is neither a file nor a folder"));
}

}  // namespace orvanta
