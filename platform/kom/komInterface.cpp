#include "kom/komInterface.h"

komInterface::~komInterface() = default;
komEventRetrievalInterface::~komEventRetrievalInterface() = default;
komEventStorageStatusInterface::~komEventStorageStatusInterface() = default;
