#pragma once

class CPort;
class QTreeWidgetItem;

/// Shows the groups of a port as rows below its own; the first column's Qt::UserRole is the id. Rows stay
/// where they are, and of a port with very many groups the first ones are shown.
void ShowGroups(const CPort& port, QTreeWidgetItem& row);
