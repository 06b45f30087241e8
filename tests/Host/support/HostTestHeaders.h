// The precompiled header of the host's tests.
#pragma once

#include "TestHeaders.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <boost/signals2/signal.hpp>
