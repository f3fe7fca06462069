// SPDX-License-Identifier: Apache-2.0
#include "embeddeddriver.h"

#include "ieddriver.h"

EmbeddedDriver startEmbeddedDriver(const EmbeddedDriverOptions &options)
{
    IedDriverOptions driver;
    driver.cacheFolder = options.cacheFolder;
    driver.journal = options.journal;
    const auto started = std::make_shared<IedDriver>(std::move(driver));
    return {started, started->serviceFor(Caller::ofThisProcess())};
}
