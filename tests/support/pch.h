#pragma once

#include "platform/pch.h"

#include <QSignalSpy>
#include <QtTest>
#include <gtest/gtest.h>
