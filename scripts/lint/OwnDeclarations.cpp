// An extension of clang-tidy: lets the checks visit the declarations of the project only. Findings in system headers are
// not reported anyway, but to visit them takes most of the time.

#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/FrontendAction.h>
#include <clang/Frontend/FrontendPluginRegistry.h>
#include <memory>
#include <string>
#include <vector>

namespace {

class OwnDeclarations final : public clang::ASTConsumer
{
public:
    void HandleTranslationUnit(clang::ASTContext& context) override
    {
        const clang::SourceManager& sources = context.getSourceManager();
        std::vector<clang::Decl*> own;
        for (clang::Decl* declaration : context.getTranslationUnitDecl()->decls()) {
            if (!sources.isInSystemHeader(declaration->getLocation()))
                own.push_back(declaration);
        }
        context.setTraversalScope(own);
    }
};

/// Runs before the checks, without an argument of the command line.
class OwnDeclarationsAction final : public clang::PluginASTAction
{
protected:
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance& /*compiler*/,
                                                          llvm::StringRef /*file*/) override
    {
        return std::make_unique<OwnDeclarations>();
    }

    bool ParseArgs(const clang::CompilerInstance& /*compiler*/, const std::vector<std::string>& /*arguments*/) override
    {
        return true;
    }

    ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<OwnDeclarationsAction> registration("own-declarations",
                                                                             "Visits no system headers");

} // namespace
