// The headers that most tests of the host include, precompiled.
#pragma once

#include "TestHeaders.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <boost/signals2/signal.hpp>
