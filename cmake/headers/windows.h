#include "windowless.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
