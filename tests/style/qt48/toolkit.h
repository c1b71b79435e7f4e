// What tests/style/check-qt48 includes first: all of Qt 5, with the macros that Qt 4.8 has, as it has them.
#include <QtWidgets>

#undef QT_TR_NOOP
#undef QT_TRANSLATE_NOOP
#define QT_TR_NOOP(x) (x)
#define QT_TRANSLATE_NOOP(scope, x) (x)

#undef QByteArrayLiteral
#undef QStringLiteral
#undef qInfo
#undef Q_DECL_FINAL
#undef Q_DECL_NOEXCEPT
#undef Q_DECL_OVERRIDE
#undef Q_ENUM
#undef Q_ENUM_NS
#undef Q_FALLTHROUGH
#undef Q_FLAG
#undef Q_FLAG_NS
#undef Q_GADGET_EXPORT
#undef Q_NAMESPACE
#undef Q_NAMESPACE_EXPORT
#undef Q_NULLPTR
#undef Q_REVISION
