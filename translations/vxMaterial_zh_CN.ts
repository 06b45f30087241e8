<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CmdMatExport</name>
    <message>
        <source>Export materials</source>
        <translation>导出材料</translation>
    </message>
    <message>
        <source>Export materials to JSON file</source>
        <translation>将材料导出到 JSON 文件</translation>
    </message>
    <message>
        <source>JSON file(*.json)</source>
        <translation>JSON 文件(*.json)</translation>
    </message>
</context>
<context>
    <name>CmdMatImport</name>
    <message>
        <source>Import materials</source>
        <translation>导入材料</translation>
    </message>
    <message>
        <source>Import CSV file into material</source>
        <translation>将 CSV 文件导入材料</translation>
    </message>
    <message>
        <source>Import file</source>
        <translation>导入文件</translation>
    </message>
    <message>
        <source>All (*)</source>
        <translation>所有 (*)</translation>
    </message>
</context>
<context>
    <name>ComboBoxItemDelegate</name>
    <message>
        <source>one in row %1</source>
        <translation>第 %1 行之一</translation>
    </message>
    <message>
        <source>two in row %1</source>
        <translation>第 %1 行之二</translation>
    </message>
    <message>
        <source>three in row %1</source>
        <translation>第 %1 行之三</translation>
    </message>
</context>
<context>
    <name>FileCommand</name>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Import exchange document</source>
        <translation>导入交换文档</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the project in its file</source>
        <translation>将项目保存到其文件</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Save the project in another file</source>
        <translation>将项目保存到另一个文件</translation>
    </message>
    <message>
        <source>I&amp;mport exchange document...</source>
        <translation>导入交换文档(&amp;M)...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>Open one of the projects last used</source>
        <translation>打开最近使用的项目之一</translation>
    </message>
    <message>
        <source>Exchange document (*.json)</source>
        <translation>交换文档 (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Open a project from a file</source>
        <translation>从文件打开项目</translation>
    </message>
    <message>
        <source>Add the content of an exchange document to the project</source>
        <translation>将交换文档的内容添加到项目</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>最近的项目</translation>
    </message>
    <message>
        <source>Project (*.vxmat)</source>
        <translation>项目 (*.vxmat)</translation>
    </message>
    <message>
        <source>Hand over to the solver</source>
        <translation>移交给求解器</translation>
    </message>
    <message>
        <source>Only what has been applied is handed over.</source>
        <translation>只移交已应用的内容。</translation>
    </message>
    <message>
        <source>&amp;Hand over without them</source>
        <translation>不含这些内容移交(&amp;H)</translation>
    </message>
</context>
<context>
    <name>Gui::ColorChoice</name>
    <message>
        <source>Choose color</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>The color cannot be set</source>
        <translation>无法设置颜色</translation>
    </message>
</context>
<context>
    <name>Gui::Command</name>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>没有命令“%1”。</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; failed</source>
        <translation>命令“%1”失败</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Gui::CoreEditor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened: its editor &quot;%2&quot; is missing. The module of the editor may not be loaded.</source>
        <translation>无法打开“%1”：缺少编辑器“%2”。该编辑器的模块可能未加载。</translation>
    </message>
</context>
<context>
    <name>Gui::DockSet</name>
    <message>
        <source>The docking window &quot;%1&quot; cannot be made</source>
        <translation>无法创建停靠窗口“%1”</translation>
    </message>
</context>
<context>
    <name>Gui::GuiApplication</name>
    <message>
        <source>An error occurred</source>
        <translation>出现错误</translation>
    </message>
</context>
<context>
    <name>Gui::GuiProject</name>
    <message>
        <source>The tree node &quot;%1&quot; cannot be made</source>
        <translation>无法创建树节点“%1”</translation>
    </message>
</context>
<context>
    <name>Gui::MDIWindow</name>
    <message>
        <source>An edit in &quot;%1&quot; cannot be completed</source>
        <translation>无法完成“%1”中的编辑</translation>
    </message>
</context>
<context>
    <name>Gui::MainWindow</name>
    <message>
        <source>There is no workbench &quot;%1&quot;.</source>
        <translation>没有工作台“%1”。</translation>
    </message>
    <message>
        <source>Project explorer</source>
        <translation>项目浏览器</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>Gui::MessageLogView</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Double-click the message, or press Return, to go to the object.</source>
        <translation>双击消息或按回车键可转到该对象。</translation>
    </message>
    <message>
        <source>The object of a message cannot be shown</source>
        <translation>无法显示消息所指的对象</translation>
    </message>
    <message>
        <source>The object of this message has been deleted or closed.</source>
        <translation>此消息所指的对象已被删除或关闭。</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>C&amp;lear messages</source>
        <translation>清空消息(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Gui::ObjectClipboard</name>
    <message>
        <source>These properties of &quot;%1&quot; could not be pasted: %2.</source>
        <translation>“%1”的以下属性无法粘贴：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be pasted into &quot;%2&quot;: a project of this kind does not take such objects. Nothing was pasted.</source>
        <translation>无法将“%1”粘贴到“%2”：这种项目不接受此类对象。未粘贴任何内容。</translation>
    </message>
    <message>
        <source>An object cannot be pasted completely</source>
        <translation>无法完整粘贴一个对象</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 副本</translation>
    </message>
</context>
<context>
    <name>Gui::PictureFactory</name>
    <message>
        <source>The picture %1 is missing.</source>
        <translation>缺少图片 %1。</translation>
    </message>
</context>
<context>
    <name>Gui::ProjectExplorer</name>
    <message>
        <source>Project explorer</source>
        <translation>项目浏览器</translation>
    </message>
    <message>
        <source>Display as</source>
        <translation>显示方式</translation>
    </message>
</context>
<context>
    <name>Gui::ProjectTreeModel</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Empty: nothing is defined yet</source>
        <translation>空：尚未定义任何内容</translation>
    </message>
    <message>
        <source>
Suppressed</source>
        <translation>
已抑制</translation>
    </message>
    <message>
        <source>The module for &quot;%1&quot; is not loaded. Its data are saved unchanged, but cannot be edited.</source>
        <translation>“%1”所需的模块未加载。其数据将原样保存，但无法编辑。</translation>
    </message>
    <message>
        <source>Not ready. Findings: %1</source>
        <translation>未就绪。检查结果：%1</translation>
    </message>
</context>
<context>
    <name>Gui::PropertyDelegate</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>Gui::PropertyPanel</name>
    <message>
        <source>Nothing is selected.</source>
        <translation>未选择任何内容。</translation>
    </message>
    <message>
        <source>%1 entries are selected.</source>
        <translation>已选择 %1 项。</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>Gui::Translator</name>
    <message>
        <source>The translation %1 cannot be read; its texts are shown in English.</source>
        <translation>无法读取翻译 %1；其文本以英文显示。</translation>
    </message>
</context>
<context>
    <name>Gui::WelcomePage</name>
    <message>
        <source>No project is open</source>
        <translation>没有打开的项目</translation>
    </message>
    <message>
        <source>The project is empty</source>
        <translation>项目为空</translation>
    </message>
    <message>
        <source>The project menu offers what can be added.</source>
        <translation>“项目”菜单列出可添加的内容。</translation>
    </message>
    <message>
        <source>No document is open</source>
        <translation>未打开任何文档</translation>
    </message>
    <message>
        <source>Double-click an object in the project explorer.</source>
        <translation>请在项目浏览器中双击一个对象。</translation>
    </message>
    <message>
        <source>No module is loaded</source>
        <translation>未加载任何模块</translation>
    </message>
    <message>
        <source>Make a new project, or open a saved one.</source>
        <translation>请新建项目，或打开已保存的项目。</translation>
    </message>
    <message>
        <source>The message log names the modules that could not be loaded, and the reasons.</source>
        <translation>消息日志列出了无法加载的模块及其原因。</translation>
    </message>
</context>
<context>
    <name>HelpCommand</name>
    <message>
        <source>&amp;Guide</source>
        <translation>指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>按键(&amp;K)</translation>
    </message>
    <message>
        <source>Show the keys of all commands</source>
        <translation>显示所有命令的按键</translation>
    </message>
    <message>
        <source>Open &amp;example project</source>
        <translation>打开示例项目(&amp;E)</translation>
    </message>
    <message>
        <source>Open a copy of the example project</source>
        <translation>打开示例项目的副本</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>Show the guide to the program, or close it</source>
        <translation>显示或关闭程序指南</translation>
    </message>
</context>
<context>
    <name>Kelta</name>
    <message>
        <source>an exception without a text</source>
        <translation>没有文本的异常</translation>
    </message>
    <message>
        <source>an exception of an unknown kind</source>
        <translation>未知类型的异常</translation>
    </message>
    <message>
        <source>a text has a character that XML cannot hold</source>
        <translation>文本中含有 XML 不允许的字符</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>A listener of the message log failed: %1</source>
        <translation>消息日志的一个监听器失败：%1</translation>
    </message>
</context>
<context>
    <name>Kelta::DataPersistence</name>
    <message>
        <source>%1: this file does not hold an object of the application</source>
        <translation>%1：该文件不包含本应用程序的对象</translation>
    </message>
    <message>
        <source>%1: this file holds an object of class &quot;%2&quot;; one of &quot;%3&quot; is needed</source>
        <translation>%1：该文件包含类“%2”的对象；需要类“%3”的对象</translation>
    </message>
</context>
<context>
    <name>Kelta::ModuleDescriptor</name>
    <message>
        <source>the descriptor is not a file</source>
        <translation>描述符不是文件</translation>
    </message>
    <message>
        <source>the descriptor cannot be read: %1</source>
        <translation>无法读取描述符：%1</translation>
    </message>
    <message>
        <source>the descriptor is larger than %1 bytes</source>
        <translation>描述符大于 %1 字节</translation>
    </message>
    <message>
        <source>the descriptor is not JSON: %1 at byte %2</source>
        <translation>描述符不是 JSON：%1，位于第 %2 字节</translation>
    </message>
    <message>
        <source>the descriptor is not a JSON object</source>
        <translation>描述符不是 JSON 对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the descriptor is not a text</source>
        <translation>描述符中的“%1”不是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in the descriptor</source>
        <translation>描述符中缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &quot;%2&quot; in the descriptor is not a version; an example of one is &quot;0.1.0&quot;</source>
        <translation>描述符中“%2”的“%1”不是版本号；例如“0.1.0”</translation>
    </message>
    <message>
        <source>it needs version %1 of the program, which has version %2</source>
        <translation>它需要程序的版本 %1，而程序版本为 %2</translation>
    </message>
    <message>
        <source>&quot;library&quot; in the descriptor is &quot;%1&quot;; it must be a file beside the descriptor, without a folder</source>
        <translation>描述符中的“library”为“%1”；它必须是描述符旁边的文件，不带文件夹</translation>
    </message>
    <message>
        <source>&quot;entries&quot; in the descriptor is not a list of names of functions</source>
        <translation>描述符中的“entries”不是函数名列表</translation>
    </message>
    <message>
        <source>&quot;needs&quot; in the descriptor is not an object of modules with their versions</source>
        <translation>描述符中的“needs”不是由模块及其版本组成的对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the descriptor is unknown; the known members are %2</source>
        <translation>描述符中的“%1”未知；已知的成员有 %2</translation>
    </message>
    <message>
        <source>&quot;module&quot; in the descriptor is &quot;%1&quot;, which differs from the name of the file</source>
        <translation>描述符中的“module”为“%1”，与文件名不符</translation>
    </message>
</context>
<context>
    <name>Kelta::PluginLoader</name>
    <message>
        <source>an error without a text</source>
        <translation>没有文本的错误</translation>
    </message>
    <message>
        <source>there is no %1 in %2</source>
        <translation>%2 中没有 %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>it needs the module &quot;%1&quot;, which is missing</source>
        <translation>它需要模块“%1”，但该模块不存在</translation>
    </message>
    <message>
        <source>it needs the module &quot;%1&quot;, which was not loaded</source>
        <translation>它需要模块“%1”，但该模块未加载</translation>
    </message>
    <message>
        <source>it needs version %1 of the module &quot;%2&quot;, which has version %3</source>
        <translation>它需要模块“%2”的版本 %1，而其版本为 %3</translation>
    </message>
    <message>
        <source>it needs itself: %1</source>
        <translation>它依赖自身：%1</translation>
    </message>
    <message>
        <source>its library %1 has no function &quot;%2&quot;</source>
        <translation>其库 %1 没有函数“%2”</translation>
    </message>
    <message>
        <source>its library cannot be loaded: %1</source>
        <translation>无法加载其库：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of its library failed: %2</source>
        <translation>其库的“%1”失败：%2</translation>
    </message>
    <message>
        <source>The module &quot;%1&quot; was not loaded: %2</source>
        <translation>模块“%1”未加载：%2</translation>
    </message>
    <message>
        <source>its library %1 is not a regular file</source>
        <translation>其库 %1 不是普通文件</translation>
    </message>
    <message>
        <source>its library %1 is incomplete</source>
        <translation>其库 %1 不完整</translation>
    </message>
</context>
<context>
    <name>Kelta::RootClass</name>
    <message>
        <source>The class &quot;%1&quot; cannot be registered: %2</source>
        <translation>无法注册类“%1”：%2</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>它没有名称</translation>
    </message>
    <message>
        <source>another class has this name</source>
        <translation>另一个类已使用此名称</translation>
    </message>
    <message>
        <source>it would be derived from itself</source>
        <translation>它会派生自自身</translation>
    </message>
</context>
<context>
    <name>MatCmdDelDoc</name>
    <message>
        <source>Close project</source>
        <translation>关闭项目</translation>
    </message>
    <message>
        <source>Delete a material project</source>
        <translation>删除材料项目</translation>
    </message>
</context>
<context>
    <name>MatCmdDelete</name>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Deletes the selected material objects</source>
        <translation>删除所选材料对象</translation>
    </message>
</context>
<context>
    <name>MatCmdEdit</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit current material</source>
        <translation>编辑当前材料</translation>
    </message>
</context>
<context>
    <name>MatCmdMaterial</name>
    <message>
        <source>Add material</source>
        <translation>添加材料</translation>
    </message>
    <message>
        <source>Add a new material</source>
        <translation>添加新材料</translation>
    </message>
    <message>
        <source>Invalid project</source>
        <translation>无效项目</translation>
    </message>
    <message>
        <source>No material project.</source>
        <translation>没有材料项目。</translation>
    </message>
</context>
<context>
    <name>MatCmdNewDoc</name>
    <message>
        <source>&amp;New material project</source>
        <translation>新建材料项目(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new material project</source>
        <translation>创建新的材料项目</translation>
    </message>
    <message>
        <source>Material project</source>
        <translation>材料项目</translation>
    </message>
    <message>
        <source>Material project is already presented in Project Explorer window.</source>
        <translation>项目浏览器中已有材料项目。</translation>
    </message>
</context>
<context>
    <name>MatGui::ComboDelegate</name>
    <message>
        <source>工人</source>
        <translation>工人</translation>
    </message>
    <message>
        <source>农民</source>
        <translation>农民</translation>
    </message>
    <message>
        <source>医生</source>
        <translation>医生</translation>
    </message>
    <message>
        <source>律师</source>
        <translation>律师</translation>
    </message>
    <message>
        <source>军人</source>
        <translation>军人</translation>
    </message>
</context>
<context>
    <name>MatGui::MaterialView</name>
    <message>
        <source>Invalid selection</source>
        <translation>无效选择</translation>
    </message>
    <message>
        <source>Please selection one material.</source>
        <translation>请选择一种材料。</translation>
    </message>
    <message>
        <source>Empty property</source>
        <translation>属性为空</translation>
    </message>
    <message>
        <source>No property is defined.</source>
        <translation>未定义任何属性。</translation>
    </message>
    <message>
        <source>Invalid material</source>
        <translation>无效材料</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; is not a number!</source>
        <translation>第 %1 行：“%3”的值“%2”不是数字！</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; is out of the range of numbers!</source>
        <translation>第 %1 行：“%3”的值“%2”超出数值范围！</translation>
    </message>
    <message>
        <source>Material editor</source>
        <translation>材料编辑器</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; have not been applied.</source>
        <translation>“%1”的更改尚未应用。</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>更改值</translation>
    </message>
    <message>
        <source>Take library material</source>
        <translation>采用库材料</translation>
    </message>
    <message>
        <source>Add property</source>
        <translation>添加属性</translation>
    </message>
    <message>
        <source>Remove property</source>
        <translation>移除属性</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Restore changes</source>
        <translation>恢复更改</translation>
    </message>
    <message>
        <source>An error occurred: %1</source>
        <translation>出现错误：%1</translation>
    </message>
    <message>
        <source>Row %1: The value &quot;%2&quot; of &quot;%3&quot; would be read as &quot;%4&quot;: &quot;%5&quot; is not part of the number.</source>
        <translation>第 %1 行：“%3”的值“%2”将被读作“%4”：“%5”不是数字的一部分。</translation>
    </message>
    <message>
        <source>Type the value without it.</source>
        <translation>请输入不含该部分的值。</translation>
    </message>
    <message>
        <source>Type the value in %1, without a unit.</source>
        <translation>请输入以 %1 为单位的值，不带单位。</translation>
    </message>
</context>
<context>
    <name>MatGui::SheetTableView</name>
    <message>
        <source>Insert rows</source>
        <translation>插入行</translation>
    </message>
    <message>
        <source>Remove rows</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Insert columns</source>
        <translation>插入列</translation>
    </message>
    <message>
        <source>Remove columns</source>
        <translation>删除列</translation>
    </message>
    <message>
        <source>Properties...</source>
        <translation>属性…</translation>
    </message>
    <message>
        <source>enum</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Row %1: Mass density must be positive!</source>
        <translation>第 %1 行：质量密度必须为正！</translation>
    </message>
    <message>
        <source>Row %1: Poisson&apos;s ratio must be between [0.001, 0.499]!</source>
        <translation>第 %1 行：泊松比必须在 [0.001, 0.499] 之间！</translation>
    </message>
    <message>
        <source>Row %1: Yield type must be Mises, Mohr-Coulomb, or Drucker-Prager!</source>
        <translation>第 %1 行：屈服类型必须为 Mises、Mohr-Coulomb 或 Drucker-Prager！</translation>
    </message>
    <message>
        <source>Row %1: Hardening type must be Bilinear, Multilinear, Swift,                     Ramberg-Osgood, Kinematic, or Combined!</source>
        <translation>第 %1 行：硬化类型必须为 Bilinear、Multilinear、Swift、Ramberg-Osgood、Kinematic 或 Combined！</translation>
    </message>
    <message>
        <source>Elasticity and hyper-elasticy cannot be used togeter!</source>
        <translation>弹性与超弹性不能同时使用！</translation>
    </message>
    <message>
        <source>Elasticity does not define Young&apos;s modulus!</source>
        <translation>弹性未定义杨氏模量！</translation>
    </message>
    <message>
        <source>Elasticity does not define Poisson&apos;s ratio!</source>
        <translation>弹性未定义泊松比！</translation>
    </message>
</context>
<context>
    <name>MatGui::ViewFeederMaterialObject</name>
    <message>
        <source>Show material</source>
        <translation>显示材料</translation>
    </message>
</context>
<context>
    <name>Mat_Delete</name>
    <message>
        <source>Object dependencies</source>
        <translation>对象依赖</translation>
    </message>
    <message>
        <source>This object is linked to other objects thus these objects might be broken.
Do you want to continue?</source>
        <translation>此对象与其他对象相关联，因此这些对象可能会损坏。
是否继续？</translation>
    </message>
</context>
<context>
    <name>MaterialAbout</name>
    <message>
        <source>Materials for finite-element simulation: 26 ready-made materials, 36 quantities, and the documents and cards that the solver reads.</source>
        <translation>用于有限元仿真的材料：26 种现成材料、36 个物理量，以及求解器读取的文档和卡片。</translation>
    </message>
</context>
<context>
    <name>MaterialCommand</name>
    <message>
        <source>&amp;Check materials</source>
        <translation>检查材料(&amp;C)</translation>
    </message>
    <message>
        <source>Check whether all materials of the project are ready</source>
        <translation>检查项目的所有材料是否就绪</translation>
    </message>
</context>
<context>
    <name>MaterialWelcome</name>
    <message>
        <source>No project is open</source>
        <translation>未打开任何项目</translation>
    </message>
    <message>
        <source>The project has no materials yet</source>
        <translation>项目中还没有材料</translation>
    </message>
    <message>
        <source>No material is open</source>
        <translation>未打开任何材料</translation>
    </message>
    <message>
        <source>Double-click a material in the project explorer, or select one and choose Edit.</source>
        <translation>请在项目浏览器中双击一种材料，或选中后选择“编辑”。</translation>
    </message>
    <message>
        <source>A material project holds the materials of a model. Make a new one, or open a saved one.</source>
        <translation>材料项目包含模型的材料。请新建一个，或打开已保存的项目。</translation>
    </message>
    <message>
        <source>Add a material. It has the values of structural steel; the editor offers 25 other materials and all quantities.</source>
        <translation>请添加一种材料。其初始值为结构钢；编辑器提供另外 25 种材料和所有物理量。</translation>
    </message>
</context>
<context>
    <name>MaterialWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>材料库</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>General Materials</source>
        <translation>通用材料</translation>
    </message>
    <message>
        <source>Nonlinear Materials</source>
        <translation>非线性材料</translation>
    </message>
    <message>
        <source>Hyperelastic Materials</source>
        <translation>超弹性材料</translation>
    </message>
    <message>
        <source>Thermal &amp;&amp; Fluid Materials</source>
        <translation>热与流体材料</translation>
    </message>
    <message>
        <source>Thermal &amp; Fluid Materials</source>
        <translation>热与流体材料</translation>
    </message>
    <message>
        <source>Electromagnetc Materials</source>
        <translation>电磁材料</translation>
    </message>
    <message>
        <source>Acoustic Materials</source>
        <translation>声学材料</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Linear Elastic</source>
        <translation>线弹性</translation>
    </message>
    <message>
        <source>Hyper-elastic</source>
        <translation>超弹性</translation>
    </message>
    <message>
        <source>Plastic</source>
        <translation>塑性</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>蠕变</translation>
    </message>
    <message>
        <source>Visco-elastic</source>
        <translation>粘弹性</translation>
    </message>
    <message>
        <source>Electromagnetic</source>
        <translation>电磁</translation>
    </message>
    <message>
        <source>Material Properties</source>
        <translation>材料属性</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Shows the selected library material in the table</source>
        <translation>在表格中显示所选的库材料</translation>
    </message>
    <message>
        <source>Writes the table into the material and closes the window</source>
        <translation>将表格写入材料并关闭窗口</translation>
    </message>
    <message>
        <source>Writes the table into the material</source>
        <translation>将表格写入材料</translation>
    </message>
    <message>
        <source>Removes all properties from the table</source>
        <translation>从表格中移除所有属性</translation>
    </message>
    <message>
        <source>Closes the window and discards changes that are not applied</source>
        <translation>关闭窗口并放弃未应用的更改</translation>
    </message>
</context>
<context>
    <name>Obj</name>
    <message>
        <source>A listener failed</source>
        <translation>一个监听器失败</translation>
    </message>
</context>
<context>
    <name>Obj::Application</name>
    <message>
        <source>this class is not known</source>
        <translation>此类未知</translation>
    </message>
    <message>
        <source>this is not a class of projects</source>
        <translation>这不是项目类</translation>
    </message>
    <message>
        <source>No project of class &quot;%1&quot; was made: %2.</source>
        <translation>未创建类“%1”的项目：%2。</translation>
    </message>
    <message>
        <source>the class cannot create objects</source>
        <translation>该类无法创建对象</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; was restored as &quot;%2&quot;, because another project has its name.</source>
        <translation>项目“%1”已恢复为“%2”，因为其名称已被另一个项目使用。</translation>
    </message>
</context>
<context>
    <name>Obj::Project</name>
    <message>
        <source>this class is not known</source>
        <translation>此类未知</translation>
    </message>
    <message>
        <source>this is not a class of objects of a project</source>
        <translation>这不是项目对象的类</translation>
    </message>
    <message>
        <source>No object of class &quot;%1&quot; was added to the project &quot;%2&quot;: %3.</source>
        <translation>未向项目“%2”添加类“%1”的对象：%3。</translation>
    </message>
    <message>
        <source>No object of class &quot;%1&quot; was added to the project &quot;%2&quot;: projects of class &quot;%3&quot; do not take such objects.</source>
        <translation>未向项目“%2”添加类“%1”的对象：类“%3”的项目不接受此类对象。</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; cannot be added to the project &quot;%2&quot; under the id %3: ids are whole numbers from 1 to 4294967295 that no object of the project has or had, and the name must be one that no object has.</source>
        <translation>无法以编号 %3 将对象“%1”添加到项目“%2”：编号必须是 1 到 4294967295 之间、项目中任何对象都未曾使用的整数，且名称不得与其他对象相同。</translation>
    </message>
    <message>
        <source>No object can be added to the project &quot;%1&quot;: all ids are used up.</source>
        <translation>无法向项目“%1”添加对象：所有编号已用完。</translation>
    </message>
    <message>
        <source>An object failed after its project had been read</source>
        <translation>读取项目后，一个对象失败</translation>
    </message>
    <message>
        <source>The execution of an object failed</source>
        <translation>对象的执行失败</translation>
    </message>
    <message>
        <source>the class cannot create objects</source>
        <translation>该类无法创建对象</translation>
    </message>
    <message>
        <source>The object cannot be restored in the project &quot;%1&quot;, because it does not belong to this project.</source>
        <translation>无法在项目“%1”中恢复该对象，因为它不属于该项目。</translation>
    </message>
    <message>
        <source>An object failed when it was restored</source>
        <translation>对象在恢复时失败</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; was restored as &quot;%2&quot;, because another object has its name.</source>
        <translation>对象“%1”已恢复为“%2”，因为其名称已被另一个对象使用。</translation>
    </message>
</context>
<context>
    <name>Obj::ProjectObject</name>
    <message>
        <source>&quot;%1&quot; cannot be linked to &quot;%2&quot;: both must be in the same project.</source>
        <translation>无法将“%1”链接到“%2”：两者必须在同一项目中。</translation>
    </message>
    <message>
        <source>An object failed when its link was removed</source>
        <translation>对象在移除链接时失败</translation>
    </message>
    <message>
        <source>An object failed when its link was restored</source>
        <translation>对象在恢复链接时失败</translation>
    </message>
</context>
<context>
    <name>Obj::ProjectObjectGroup</name>
    <message>
        <source>&quot;%1&quot; cannot be a member of &quot;%2&quot;, because &quot;%2&quot; is inside it.</source>
        <translation>“%1”不能成为“%2”的成员，因为“%2”包含在其中。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a member of &quot;%2&quot;, because groups would be nested too deeply.</source>
        <translation>“%1”不能成为“%2”的成员，因为组会嵌套过深。</translation>
    </message>
</context>
<context>
    <name>Obj::PropertyRecords</name>
    <message>
        <source>the properties are not an object</source>
        <translation>属性不是对象</translation>
    </message>
    <message>
        <source>the links are not an array</source>
        <translation>链接不是数组</translation>
    </message>
</context>
<context>
    <name>Property</name>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>定义</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>ClassLabel</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>PhysicsType</source>
        <translation>物理类型</translation>
    </message>
    <message>
        <source>MaterialColor</source>
        <translation>材料颜色</translation>
    </message>
    <message>
        <source>Name shown in the project tree</source>
        <translation>在项目树中显示的名称</translation>
    </message>
    <message>
        <source>Identity of the tree object</source>
        <translation>树对象的标识</translation>
    </message>
    <message>
        <source>class name</source>
        <translation>类名</translation>
    </message>
    <message>
        <source>Physics type simulated in this project</source>
        <translation>此项目中模拟的物理类型</translation>
    </message>
    <message>
        <source>Color of material.</source>
        <translation>材料的颜色。</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Material Project</source>
        <translation>材料项目</translation>
    </message>
    <message>
        <source>Structural</source>
        <translation>结构</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Input check</source>
        <translation>输入检查</translation>
    </message>
    <message>
        <source>No property is defined in &apos;%1&apos;.</source>
        <translation>“%1”中未定义任何属性。</translation>
    </message>
    <message>
        <source>Material property defined in &apos;%1&apos; has value equal or less than zero.</source>
        <translation>“%1”中定义的材料属性的值小于或等于零。</translation>
    </message>
</context>
<context>
    <name>StandardCommand</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>生成副本(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Suppress</source>
        <translation>抑制(&amp;S)</translation>
    </message>
    <message>
        <source>U&amp;nsuppress</source>
        <translation>取消抑制(&amp;N)</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>重命名(&amp;M)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>关闭程序</translation>
    </message>
    <message>
        <source>&amp;Project explorer</source>
        <translation>项目浏览器(&amp;P)</translation>
    </message>
    <message>
        <source>Show or hide the project explorer</source>
        <translation>显示或隐藏项目浏览器</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>属性(&amp;R)</translation>
    </message>
    <message>
        <source>Show or hide the properties</source>
        <translation>显示或隐藏属性</translation>
    </message>
    <message>
        <source>&amp;Messages</source>
        <translation>消息(&amp;M)</translation>
    </message>
    <message>
        <source>Show or hide the messages</source>
        <translation>显示或隐藏消息</translation>
    </message>
    <message>
        <source>C&amp;lear messages</source>
        <translation>清空消息(&amp;L)</translation>
    </message>
    <message>
        <source>Empty the message log</source>
        <translation>清空消息日志</translation>
    </message>
    <message>
        <source>&amp;Tile</source>
        <translation>平铺(&amp;T)</translation>
    </message>
    <message>
        <source>Show all document windows side by side</source>
        <translation>并排显示所有文档窗口</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>层叠(&amp;C)</translation>
    </message>
    <message>
        <source>Show the document windows one behind the other</source>
        <translation>层叠显示文档窗口</translation>
    </message>
    <message>
        <source>Ta&amp;bs</source>
        <translation>选项卡(&amp;B)</translation>
    </message>
    <message>
        <source>Show the document windows as tabs</source>
        <translation>以选项卡显示文档窗口</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>关闭(&amp;O)</translation>
    </message>
    <message>
        <source>Close the document window in front</source>
        <translation>关闭最前面的文档窗口</translation>
    </message>
    <message>
        <source>Close &amp;all</source>
        <translation>全部关闭(&amp;A)</translation>
    </message>
    <message>
        <source>Close all document windows</source>
        <translation>关闭所有文档窗口</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Copy the selected objects</source>
        <translation>复制所选对象</translation>
    </message>
    <message>
        <source>Add the copied objects to the project</source>
        <translation>将复制的对象添加到项目</translation>
    </message>
    <message>
        <source>Add a copy of each selected object</source>
        <translation>添加每个所选对象的副本</translation>
    </message>
    <message>
        <source>Select all objects of the project</source>
        <translation>选择项目的所有对象</translation>
    </message>
    <message>
        <source>&amp;Hand over to the solver</source>
        <translation>移交给求解器(&amp;H)</translation>
    </message>
    <message>
        <source>Hand the data of the project over to the solver</source>
        <translation>将项目数据移交给求解器</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 以及另外 %2 个</translation>
    </message>
    <message>
        <source>Delete objects</source>
        <translation>删除对象</translation>
    </message>
    <message>
        <source>Dele&amp;te</source>
        <translation>删除(&amp;T)</translation>
    </message>
    <message>
        <source>Delete the selected objects</source>
        <translation>删除所选对象</translation>
    </message>
    <message>
        <source>&amp;Close project</source>
        <translation>关闭项目(&amp;C)</translation>
    </message>
    <message>
        <source>These objects refer to the objects to be deleted, and lose the references: %1.
Delete anyway?</source>
        <translation>以下对象引用了要删除的对象，并将失去这些引用：%1。
仍要删除吗？</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>撤销上一次更改</translation>
    </message>
    <message>
        <source>Redo the change that was undone last</source>
        <translation>重做上一次撤销的更改</translation>
    </message>
    <message>
        <source>Close the selected project, or the project of the selected object</source>
        <translation>关闭所选项目或所选对象所在的项目</translation>
    </message>
    <message>
        <source>Suppress the selected objects: they are not used, but not deleted</source>
        <translation>抑制所选对象：不使用但不删除</translation>
    </message>
    <message>
        <source>End the suppression of the selected objects</source>
        <translation>取消抑制所选对象</translation>
    </message>
    <message>
        <source>Show information about the program</source>
        <translation>显示程序信息</translation>
    </message>
    <message>
        <source>Give the selected object or project another name</source>
        <translation>为选定的对象或项目指定另一个名称</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>已撤消：%1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>C&amp;olor...</source>
        <translation>颜色(&amp;O)...</translation>
    </message>
    <message>
        <source>Choose the color of the selected objects</source>
        <translation>选择所选对象的颜色</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>工具栏(&amp;T)</translation>
    </message>
    <message>
        <source>Show or hide toolbars</source>
        <translation>显示或隐藏工具栏</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>下一窗格(&amp;N)</translation>
    </message>
    <message>
        <source>Move the keyboard focus to the next part of the window</source>
        <translation>将键盘焦点移到窗口的下一部分</translation>
    </message>
    <message>
        <source>Pre&amp;vious pane</source>
        <translation>上一窗格(&amp;V)</translation>
    </message>
    <message>
        <source>Move the keyboard focus to the previous part of the window</source>
        <translation>将键盘焦点移到窗口的上一部分</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;G)</translation>
    </message>
    <message>
        <source>Choose the language of the program</source>
        <translation>选择程序的语言</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was handed over to the solver.</source>
        <translation>“%1”已移交给求解器。</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>系统(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>项目(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Material</source>
        <translation>材料(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>&amp;Workbench</source>
        <translation>工作台(&amp;W)</translation>
    </message>
    <message>
        <source>%1 (below)</source>
        <translation>%1（下方）</translation>
    </message>
</context>
<context>
    <name>desktop::Batch</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>没有命令“%1”</translation>
    </message>
    <message>
        <source>%1 takes at most one argument, the file that it asks for</source>
        <translation>%1 最多接受一个参数，即所询问的文件</translation>
    </message>
    <message>
        <source>%1 cannot be done now</source>
        <translation>现在无法执行 %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 失败</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>没有这样的项目</translation>
    </message>
    <message>
        <source>one file name is needed</source>
        <translation>需要一个文件名</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>the library has no material &quot;%1&quot;</source>
        <translation>材料库中没有“%1”</translation>
    </message>
    <message>
        <source>the catalogue has no quantity &quot;%1&quot;</source>
        <translation>目录中没有物理量“%1”</translation>
    </message>
    <message>
        <source>one selected material is needed</source>
        <translation>需要一种所选材料</translation>
    </message>
    <message>
        <source>there is no material project</source>
        <translation>没有材料项目</translation>
    </message>
    <message>
        <source>the value &quot;%1&quot; would be read as &quot;%2&quot;; &quot;%3&quot; would be ignored; give the value without it</source>
        <translation>值“%1”将被读作“%2”；“%3”将被忽略；请给出不含该部分的值</translation>
    </message>
    <message>
        <source>the value &quot;%1&quot; is not a finite number</source>
        <translation>值“%1”不是有限数</translation>
    </message>
    <message>
        <source>the material project &quot;%1&quot; is open; close it first with select-project and Mat_DelDoc</source>
        <translation>材料项目“%1”已打开；请先用 select-project 和 Mat_DelDoc 将其关闭</translation>
    </message>
    <message>
        <source>Mat_Export needs one argument, the name of the file to write</source>
        <translation>Mat_Export 需要一个参数，即要写入的文件名</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no property &quot;%2&quot;</source>
        <translation>“%1”没有属性“%2”</translation>
    </message>
    <message>
        <source>no project is open</source>
        <translation>没有打开的项目</translation>
    </message>
    <message>
        <source>give the name of a library material, and select exactly one material</source>
        <translation>请给出一个库材料的名称，并只选择一种材料</translation>
    </message>
    <message>
        <source>give a quantity and its value, and select exactly one material</source>
        <translation>请给出一个物理量及其值，并只选择一种材料</translation>
    </message>
    <message>
        <source>arguments are not allowed here</source>
        <translation>此处不允许使用参数</translation>
    </message>
    <message>
        <source>the current project has no object with the label &quot;%1&quot;</source>
        <translation>当前项目中没有标签为“%1”的对象</translation>
    </message>
    <message>
        <source>give the name of a property and a value, and select exactly one object</source>
        <translation>请给出属性名称和值，并只选择一个对象</translation>
    </message>
    <message>
        <source>give a label, and select exactly one object</source>
        <translation>请给出一个标签，并只选择一个对象</translation>
    </message>
    <message>
        <source>select exactly one object, and give no argument</source>
        <translation>请只选择一个对象，不带参数</translation>
    </message>
    <message>
        <source>Mat_Import reads no files; import an exchange document with Std_ImportDocument</source>
        <translation>Mat_Import 不读取文件；请用 Std_ImportDocument 导入交换文档</translation>
    </message>
    <message>
        <source>nothing is selected that %1 acts on</source>
        <translation>没有选中 %1 可作用的对象</translation>
    </message>
    <message>
        <source>one selected material project is needed</source>
        <translation>需要选中一个材料项目</translation>
    </message>
    <message>
        <source>the dialog &quot;%1&quot; needs a user</source>
        <translation>对话框“%1”需要用户操作</translation>
    </message>
    <message>
        <source>the program was not closed</source>
        <translation>程序未关闭</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the list is longer than 64 MiB</source>
        <translation>该列表超过 64 MiB</translation>
    </message>
    <message>
        <source>the list is not UTF-8</source>
        <translation>该列表不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>the program has been closed by Std_Quit; no line may follow</source>
        <translation>程序已由 Std_Quit 关闭；其后不得再有命令行</translation>
    </message>
    <message>
        <source>the line contains a zero character</source>
        <translation>该行包含空字符</translation>
    </message>
    <message>
        <source>%1 needs one argument, the name of a file</source>
        <translation>%1 需要一个参数，即文件名</translation>
    </message>
    <message>
        <source>%1 did not use the argument &quot;%2&quot;</source>
        <translation>%1 没有使用参数“%2”</translation>
    </message>
    <message>
        <source>standard output cannot be written: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
</context>
<context>
    <name>desktop::EditorWatch</name>
    <message>
        <source>The values of an editor cannot be checked</source>
        <translation>无法检查编辑器中的值</translation>
    </message>
    <message>
        <source>The changes in an editor cannot be recorded</source>
        <translation>无法记录编辑器中的更改</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied: no property has changed.</source>
        <translation>“%1”已应用：没有属性发生变化。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was applied. Properties added: %2, changed: %3, removed: %4.</source>
        <translation>“%1”已应用。添加的属性：%2，更改：%3，移除：%4。</translation>
    </message>
</context>
<context>
    <name>desktop::GuideView</name>
    <message>
        <source>Guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>The file %1 of the guide cannot be read. Install the program again.</source>
        <translation>无法读取指南文件 %1。请重新安装程序。</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>everywhere</source>
        <translation>任何位置</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab、Shift+Tab</translation>
    </message>
    <message>
        <source>moves between the fields of a part</source>
        <translation>在一个部分的字段之间移动</translation>
    </message>
    <message>
        <source>explorer</source>
        <translation>项目浏览器</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>回车键</translation>
    </message>
    <message>
        <source>opens the material</source>
        <translation>打开材料</translation>
    </message>
    <message>
        <source>page headers of an editor</source>
        <translation>编辑器的页标题</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格键</translation>
    </message>
    <message>
        <source>opens the page</source>
        <translation>打开该页</translation>
    </message>
    <message>
        <source>lists of an editor</source>
        <translation>编辑器的列表</translation>
    </message>
    <message>
        <source>selects a library material; checks or unchecks a quantity</source>
        <translation>选择库中的材料；勾选或取消勾选一个量</translation>
    </message>
    <message>
        <source>table of an editor</source>
        <translation>编辑器的表格</translation>
    </message>
    <message>
        <source>F2 or Return, then Return or Escape</source>
        <translation>F2 或回车键，然后回车键或 Esc</translation>
    </message>
    <message>
        <source>edits the value of the row; keeps or discards the text</source>
        <translation>编辑该行的值；保留或放弃文本</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>编辑器</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Y</source>
        <translation>Ctrl+Z、Ctrl+Y</translation>
    </message>
    <message>
        <source>undoes and redoes changes that have not been applied</source>
        <translation>撤销和重做尚未应用的更改</translation>
    </message>
    <message>
        <source>guide</source>
        <translation>指南</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>closes the guide</source>
        <translation>关闭指南</translation>
    </message>
    <message>
        <source>Keys in the parts of the window</source>
        <translation>窗口各部分中的按键</translation>
    </message>
</context>
<context>
    <name>desktop::KeptEdits</name>
    <message>
        <source>Changes that were not applied cannot be shown again</source>
        <translation>无法重新显示未应用的更改</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialChange</name>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>更改“%1”</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialCheck</name>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>“%1”：%2</translation>
    </message>
    <message>
        <source>All materials of &quot;%1&quot; are ready (%2 checked).</source>
        <translation>“%1”的所有材料均已就绪（已检查 %2 个）。</translation>
    </message>
    <message>
        <source>Not ready in &quot;%1&quot;: %2 of %3 materials. Findings: %4.</source>
        <translation>“%1”中未就绪：%3 种材料中的 %2 种。发现的问题：%4。</translation>
    </message>
    <message>
        <source>Changes in open editors that are not applied were not checked: %1.</source>
        <translation>未检查已打开编辑器中未应用的更改：%1。</translation>
    </message>
    <message>
        <source>Further findings are not listed: %1.</source>
        <translation>未列出的其他问题：%1。</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialCounts</name>
    <message>
        <source>The materials cannot be counted</source>
        <translation>无法统计材料数量</translation>
    </message>
    <message>
        <source>Materials: %1, selected: %2, not ready: %3</source>
        <translation>材料：%1，选定：%2，未就绪：%3</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialExport</name>
    <message>
        <source>&quot;%1&quot;: An exchange document carries no words and lists. Not written: %2.</source>
        <translation>“%1”：交换文档不包含文字和列表。未写入：%2。</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; of &quot;%2&quot; is %3. An exchange document contains only finite numbers. Change the value, then export again.</source>
        <translation>“%2”的“%1”的值为 %3。交换文档只包含有限数。请更改该值后重新导出。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular file. Choose another name.</source>
        <translation>“%1”不是普通文件。请选择其他名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>Materials written to &quot;%1&quot;: %2.</source>
        <translation>写入“%1”的材料数：%2。</translation>
    </message>
    <message>
        <source>Suppressed materials among them: %1.</source>
        <translation>其中被抑制的材料：%1。</translation>
    </message>
    <message>
        <source>The export to &quot;%1&quot; is not complete: %2 Export again to another place.</source>
        <translation>导出到“%1”不完整：%2 请重新导出到其他位置。</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; of &quot;%2&quot; has the number %3. Readers of exchange documents refuse numbers below 0. Make the material again without this property, then export again.</source>
        <translation>“%2”的属性“%1”的编号为 %3。交换文档的读取程序拒绝小于 0 的编号。请重新创建不含该属性的材料，然后重新导出。</translation>
    </message>
</context>
<context>
    <name>desktop::MaterialGuards</name>
    <message>
        <source>New material project</source>
        <translation>新建材料项目</translation>
    </message>
    <message>
        <source>Only one material project can be used at a time. Close &quot;%1&quot; and make a new one?</source>
        <translation>一次只能使用一个材料项目。要关闭“%1”并新建一个吗？</translation>
    </message>
    <message>
        <source>No material project is open. Open one, then export it.</source>
        <translation>未打开任何材料项目。请先打开一个再导出。</translation>
    </message>
    <message>
        <source>Export materials</source>
        <translation>导出材料</translation>
    </message>
    <message>
        <source>&amp;Export without them</source>
        <translation>不含这些内容导出(&amp;E)</translation>
    </message>
    <message>
        <source>Edit materials</source>
        <translation>编辑材料</translation>
    </message>
    <message>
        <source>Materials selected: %1. At most %2 can be opened at a time. Select fewer.</source>
        <translation>已选择材料：%1。一次最多可打开 %2 个。请减少选择。</translation>
    </message>
    <message>
        <source>Open %1 editors?</source>
        <translation>要打开 %1 个编辑器吗？</translation>
    </message>
    <message>
        <source>Material projects that are open: %1. Only one project can be exported. Close the other projects first.</source>
        <translation>已打开的材料项目：%1。只能导出一个项目。请先关闭其他项目。</translation>
    </message>
    <message>
        <source>The export contains only applied changes.</source>
        <translation>导出内容只包含已应用的更改。</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Only one material project can be used at a time. Close &quot;%1&quot; and open &quot;%2&quot;?</source>
        <translation>一次只能使用一个材料项目。关闭“%1”并打开“%2”？</translation>
    </message>
    <message>
        <source>&amp;Close and open</source>
        <translation>关闭并打开(&amp;C)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the file of the project &quot;%2&quot;, which is open.</source>
        <translation>“%1”是已打开的项目“%2”的文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in use by %2.</source>
        <translation>“%1”正被 %2 使用。</translation>
    </message>
    <message>
        <source>Replace it by an exchange document?</source>
        <translation>用交换文档替换它？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a project file.</source>
        <translation>“%1”是项目文件。</translation>
    </message>
</context>
<context>
    <name>desktop::ProjectFiles</name>
    <message>
        <source>The project has no numbers left for so many materials.</source>
        <translation>项目没有足够的编号容纳这么多材料。</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>导入“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in use by %2.</source>
        <translation>“%1”正被 %2 使用。</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>File in use</source>
        <translation>文件正在使用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>保存项目</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the file of the project &quot;%2&quot;, which is open.</source>
        <translation>“%1”是已打开的项目“%2”的文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been saved.</source>
        <translation>“%1”已保存。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been changed by another program, on %2.</source>
        <translation>“%1”已于 %2 被另一个程序更改。</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save without them</source>
        <translation>不含更改保存(&amp;S)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>The changes of the project &quot;%1&quot; have not been saved.</source>
        <translation>项目“%1”的更改尚未保存。</translation>
    </message>
    <message>
        <source>Changes in open editors have not been applied.</source>
        <translation>打开的编辑器中的更改尚未应用。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>No copy for recovery could be kept: %1</source>
        <translation>无法保留用于恢复的副本：%1</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>The program ended before projects were saved.</source>
        <translation>程序在保存项目之前结束。</translation>
    </message>
    <message>
        <source>There are copies from %1.</source>
        <translation>有来自 %1 的副本。</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be recovered.</source>
        <translation>无法恢复“%1”。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Objects imported: %1</source>
        <translation>已导入对象：%1</translation>
    </message>
    <message>
        <source>The content of &quot;%1&quot; is kept, but no module can read it.</source>
        <translation>“%1”的内容已保留，但没有模块可以读取。</translation>
    </message>
    <message>
        <source>The content of the object &quot;%1&quot; of the class &quot;%2&quot; cannot be read: %3</source>
        <translation>无法读取类“%2”的对象“%1”的内容：%3</translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) of &quot;%1&quot; cannot be made.</source>
        <translation>
            <numerusform>无法建立“%1”的 %n 个链接。</numerusform>
        </translation>
    </message>
    <message>
        <source>These properties of &quot;%1&quot; are kept, but cannot be set: %2.</source>
        <translation>“%1”的以下属性已保留，但无法设置：%2。</translation>
    </message>
    <message>
        <source>Project (*.vxmat)</source>
        <translation>项目 (*.vxmat)</translation>
    </message>
    <message>
        <source>The message log gives the reason.</source>
        <translation>消息日志中说明了原因。</translation>
    </message>
    <message>
        <source>The object &quot;%1&quot; of the class &quot;%2&quot; cannot be added to the project. The message log gives the reason.</source>
        <translation>类“%2”的对象“%1”无法添加到项目中。消息日志中说明了原因。</translation>
    </message>
    <message>
        <source>The module of these classes is missing: %1. Their objects are kept unchanged.</source>
        <translation>缺少以下类的模块：%1。其对象保持不变。</translation>
    </message>
    <message>
        <source>If both programs save the file, the later save replaces the earlier one.</source>
        <translation>如果两个程序都保存该文件，后保存的内容会替换先保存的内容。</translation>
    </message>
    <message>
        <source>&amp;Use anyway</source>
        <translation>仍然使用(&amp;U)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was last changed on %2, before the project was recovered.</source>
        <translation>“%1”上次更改于 %2，早于项目恢复。</translation>
    </message>
    <message>
        <source>Replacing the file deletes its present content.</source>
        <translation>替换后，文件的现有内容将丢失。</translation>
    </message>
    <message>
        <source>The file contains only applied changes.</source>
        <translation>文件只包含已应用的更改。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is shown as &quot;%2&quot;.</source>
        <translation>项目“%1”显示为“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an exchange document, not a project file. No module that imports such documents is loaded.</source>
        <translation>“%1”是交换文档，不是项目文件。没有加载可导入此类文档的模块。</translation>
    </message>
    <message>
        <source>If this program no longer runs, take over its lock. If it runs:</source>
        <translation>如果该程序已不再运行，请接管其锁。如果它仍在运行：</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>接管(&amp;T)</translation>
    </message>
    <message>
        <source>&quot;Save&quot; applies them first.</source>
        <translation>“保存”会先应用这些更改。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an exchange document, not a project file.</source>
        <translation>“%1”是交换文档，不是项目文件。</translation>
    </message>
    <message>
        <source>Import its content into a new project?</source>
        <translation>将其内容导入新项目？</translation>
    </message>
    <message>
        <source>Import its content into the project &quot;%1&quot;?</source>
        <translation>将其内容导入项目“%1”？</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>HOME is not the name of a folder.</source>
        <translation>HOME 不是文件夹的名称。</translation>
    </message>
</context>
<context>
    <name>desktop::Sessions</name>
    <message>
        <source>Changes of a project cannot be determined</source>
        <translation>无法确定项目的更改</translation>
    </message>
</context>
<context>
    <name>desktop::UnappliedEdits</name>
    <message>
        <source>The changes of &quot;%1&quot; in its editor have not been applied.</source>
        <translation>编辑器中对“%1”的更改尚未应用。</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; that were not applied are shown in its editor again.</source>
        <translation>“%1”未应用的更改已重新显示在其编辑器中。</translation>
    </message>
    <message>
        <source>The changes of &quot;%1&quot; that were not applied cannot be shown again.</source>
        <translation>“%1”未应用的更改无法重新显示。</translation>
    </message>
</context>
<context>
    <name>kelta</name>
    <message>
        <source>No module was found in %1.</source>
        <translation>在 %1 中未找到模块。</translation>
    </message>
    <message>
        <source>HOME is not the name of a folder. The settings of this run are not stored.</source>
        <translation>HOME 不是文件夹的名称。本次运行的设置不会保存。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular file. The settings of this run are not stored.</source>
        <translation>“%1”不是普通文件。本次运行的设置不会保存。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; is damaged or cannot be read. Settings that cannot be read have their defaults.</source>
        <translation>设置文件“%1”已损坏或无法读取。无法读取的设置使用默认值。</translation>
    </message>
</context>
<context>
    <name>projectfile::ExchangeImport</name>
    <message>
        <source>null</source>
        <translation>空值</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真或假</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a whole number from 0 to 4294967295</source>
        <translation>0 到 4294967295 的整数</translation>
    </message>
    <message>
        <source>%1: is %2; %3 is needed</source>
        <translation>%1：是%2；需要%3</translation>
    </message>
    <message>
        <source>material %1 &quot;%2&quot;: %3</source>
        <translation>材料 %1“%2”：%3</translation>
    </message>
    <message>
        <source>property %1: %2</source>
        <translation>属性 %1：%2</translation>
    </message>
    <message>
        <source>property %1 &quot;%2&quot;: %3</source>
        <translation>属性 %1“%2”：%3</translation>
    </message>
    <message>
        <source>the document has no number for it, which is read as 0</source>
        <translation>文档中没有它的数值，按 0 读取</translation>
    </message>
    <message>
        <source>its key is &quot;%1&quot; in the document and &quot;%2&quot; in the catalogue; the key of the document was kept</source>
        <translation>它的键在文档中是“%1”，在目录中是“%2”；保留了文档中的键</translation>
    </message>
    <message>
        <source>its name is &quot;%1&quot; in the document and &quot;%2&quot; in the catalogue; the name of the document was kept</source>
        <translation>它的名称在文档中是“%1”，在目录中是“%2”；保留了文档中的名称</translation>
    </message>
    <message>
        <source>documents carry no words; &quot;%1&quot; of the catalogue was taken</source>
        <translation>文档不传递文字；采用了目录中的“%1”</translation>
    </message>
    <message>
        <source>documents carry no lists; it is empty</source>
        <translation>文档不传递列表；它为空</translation>
    </message>
    <message>
        <source>the document has it more than once; the last one was used</source>
        <translation>它在文档中出现两次；采用了最后一个</translation>
    </message>
    <message>
        <source>the document has no number for it; it was given the number %1</source>
        <translation>文档中没有它的编号；已赋予编号 %1</translation>
    </message>
    <message>
        <source>its number in the document is %1, which a later material has too; it was given the number %2</source>
        <translation>它在文档中的编号 %1 与后面的材料相同；已赋予编号 %2</translation>
    </message>
    <message>
        <source>its number in the document is %1, which no object can have; it was given the number %2</source>
        <translation>它在文档中的编号是 %1，对象不能使用该编号；已赋予编号 %2</translation>
    </message>
    <message>
        <source>the document has no name for it</source>
        <translation>文档中没有它的名称</translation>
    </message>
    <message>
        <source>it is a project file, which needs no import</source>
        <translation>这是项目文件，无需导入</translation>
    </message>
    <message>
        <source>an analysis document holds no materials; give the material document</source>
        <translation>分析文档不包含材料；请提供材料文档</translation>
    </message>
    <message>
        <source>it is not a material document: &quot;proj_type&quot; must be 2</source>
        <translation>这不是材料文档：“proj_type”必须为 2</translation>
    </message>
    <message>
        <source>the document holds no materials</source>
        <translation>文档不包含材料</translation>
    </message>
    <message>
        <source>%1: occurs more than once; the last one was used</source>
        <translation>%1：出现多次；使用最后一个</translation>
    </message>
    <message>
        <source>it is not in the catalogue; its unit, description and category are lost</source>
        <translation>目录中没有它；它的单位、说明和类别已丢失</translation>
    </message>
</context>
<context>
    <name>projectfile::ProjectFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>文件是空的。</translation>
    </message>
    <message>
        <source>The file was written by a later version of the program, in version %1 of the format; this program reads up to version %2.</source>
        <translation>该文件由更新版本的程序写入，格式版本为 %1；本程序最高可读取版本 %2。</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行，第 %2 列：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must not be empty</source>
        <translation>“%1”不得为空</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which contains a zero character</source>
        <translation>“%1”为 %2，其中含有零字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is 0 but must be from 1 to 4294967295</source>
        <translation>“%1”为 0，但必须在 1 到 4294967295 之间</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is the number of %3 too</source>
        <translation>“%1”为 %2，%3 也使用该编号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is the name of %3 too</source>
        <translation>“%1”为 %2，%3 也使用该名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but must be from %3 to %4, because object numbers are not reused</source>
        <translation>“%1”为 %2，但必须在 %3 到 %4 之间，因为对象编号不会重复使用</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1”必须是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an array</source>
        <translation>“%1”必须是数组</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>“%1”必须是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but the object itself has %3</source>
        <translation>“%1”为 %2，但对象本身为 %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be the number of an object</source>
        <translation>“%1”必须是对象的编号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but &quot;materials&quot; and &quot;objects&quot; have no such object</source>
        <translation>“%1”为 %2，但“materials”和“objects”中没有此对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which occurs twice</source>
        <translation>“%1”为 %2，出现了两次</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is object %2, which &quot;database.objects.object&quot; does not have</source>
        <translation>“%1”是对象 %2，而“database.objects.object”中没有该对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but %3 in the database; %2 is used.</source>
        <translation>“%1”为 %2，而数据库中为 %3；使用 %2。</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>不是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, the object itself.</source>
        <translation>“%1”为 %2，即对象自身。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but there is no such object.</source>
        <translation>“%1”为 %2，但没有这样的对象。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which occurs twice.</source>
        <translation>“%1”为 %2，出现了两次。</translation>
    </message>
    <message>
        <source>This is not a project file: its member &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>这不是项目文件：其成员“format”不是“%1”。</translation>
    </message>
    <message>
        <source>an array of objects</source>
        <translation>对象数组</translation>
    </message>
    <message>
        <source>an array of numbers</source>
        <translation>数字数组</translation>
    </message>
    <message>
        <source>an array of the numbers of objects</source>
        <translation>对象编号数组</translation>
    </message>
    <message>
        <source>an array of four numbers: red, green, blue and opacity</source>
        <translation>四个数字的数组：红、绿、蓝和不透明度</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a number from 0 to 1</source>
        <translation>0 到 1 之间的数字</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a whole number of 32 bits</source>
        <translation>32 位整数</translation>
    </message>
    <message>
        <source>the number of an object, from 1 to 4294967295</source>
        <translation>对象编号，1 到 4294967295</translation>
    </message>
    <message>
        <source>the number of the next object, from 1 to 4294967296</source>
        <translation>下一个对象的编号，1 到 4294967296</translation>
    </message>
    <message>
        <source>the number of a category, 0 to 9</source>
        <translation>类别编号，0 到 9</translation>
    </message>
    <message>
        <source>the version of the format, a whole number from 1</source>
        <translation>格式版本，从 1 开始的整数</translation>
    </message>
    <message>
        <source>The text is %1 but must be %2</source>
        <translation>文本是%1，但必须是%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 but must be %3</source>
        <translation>“%1”为 %2，但必须是%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, but objects of this class belong in &quot;materials&quot;</source>
        <translation>“%1”是 %2，但此类对象应位于“materials”中</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out; the label of the object is %2.</source>
        <translation>“%1”被忽略；该对象的标签是 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is in another group or contains this group.</source>
        <translation>“%1”是 %2，它已在另一个组中，或包含此组。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, which is nested in too many groups.</source>
        <translation>“%1”是%2，它嵌套在过多的组中。</translation>
    </message>
</context>
<context>
    <name>projectfile::ProjectStore</name>
    <message>
        <source>The file is too large for a project.</source>
        <translation>文件过大，不可能是项目。</translation>
    </message>
    <message>
        <source>The file is too large for the memory.</source>
        <translation>文件过大，内存不足。</translation>
    </message>
    <message>
        <source>Another program changed the file while it was read. Try again.</source>
        <translation>读取文件时，另一个程序更改了它。请重试。</translation>
    </message>
    <message>
        <source>The name of a file is empty.</source>
        <translation>文件名为空。</translation>
    </message>
    <message>
        <source>This is a folder; a file is needed.</source>
        <translation>这是文件夹；需要文件。</translation>
    </message>
    <message>
        <source>This is a device or a pipe; a file is needed.</source>
        <translation>这是设备或管道；需要文件。</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; does not exist.</source>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a file; a folder is needed.</source>
        <translation>“%1”是文件；需要文件夹。</translation>
    </message>
    <message>
        <source>%1 (%2 on %3)</source>
        <translation>%1（%3 上的 %2）</translation>
    </message>
    <message>
        <source>Its lock file &apos;%1&apos; is not a regular file. Remove it.</source>
        <translation>其锁文件“%1”不是普通文件。请将其删除。</translation>
    </message>
</context>
<context>
    <name>vxMat::MaterialBase</name>
    <message>
        <source>Structural Steel</source>
        <translation>结构钢</translation>
    </message>
    <message>
        <source>Aluminum Alloy</source>
        <translation>铝合金</translation>
    </message>
    <message>
        <source>Stainless Steel</source>
        <translation>不锈钢</translation>
    </message>
    <message>
        <source>Concrete</source>
        <translation>混凝土</translation>
    </message>
    <message>
        <source>Copper Alloy</source>
        <translation>铜合金</translation>
    </message>
    <message>
        <source>Cast Iron</source>
        <translation>铸铁</translation>
    </message>
    <message>
        <source>Titanium Alloy</source>
        <translation>钛合金</translation>
    </message>
    <message>
        <source>Nonlinear Structural Steel</source>
        <translation>非线性结构钢</translation>
    </message>
    <message>
        <source>Nonlinear Stainless Steel</source>
        <translation>非线性不锈钢</translation>
    </message>
    <message>
        <source>Nonlinear Aluminum Alloy</source>
        <translation>非线性铝合金</translation>
    </message>
    <message>
        <source>Nonlinear Copper Alloy</source>
        <translation>非线性铜合金</translation>
    </message>
    <message>
        <source>Nonlinear Titanium Alloy</source>
        <translation>非线性钛合金</translation>
    </message>
    <message>
        <source>Plastic Example 1</source>
        <translation>塑性示例 1</translation>
    </message>
    <message>
        <source>Plastic Example 2</source>
        <translation>塑性示例 2</translation>
    </message>
    <message>
        <source>Viscoelastic Example</source>
        <translation>粘弹性示例</translation>
    </message>
    <message>
        <source>Creep Example</source>
        <translation>蠕变示例</translation>
    </message>
    <message>
        <source>Elastomer 1 (Neo-Hookean)</source>
        <translation>弹性体 1（Neo-Hookean）</translation>
    </message>
    <message>
        <source>Elastomer 2 (Mooney-Rivlin)</source>
        <translation>弹性体 2（Mooney-Rivlin）</translation>
    </message>
    <message>
        <source>Elastomer 3 (Arruda-Boyce)</source>
        <translation>弹性体 3（Arruda-Boyce）</translation>
    </message>
    <message>
        <source>Neoprene Rubber</source>
        <translation>氯丁橡胶</translation>
    </message>
    <message>
        <source>Air</source>
        <translation>空气</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Electromangetic Material 1</source>
        <translation>电磁材料 1</translation>
    </message>
    <message>
        <source>Electromangetic Material 2</source>
        <translation>电磁材料 2</translation>
    </message>
    <message>
        <source>Acoustic Material 1</source>
        <translation>声学材料 1</translation>
    </message>
    <message>
        <source>Acoustic Material 2</source>
        <translation>声学材料 2</translation>
    </message>
</context>
<context>
    <name>vxMat::PropertyDescription</name>
    <message>
        <source>Mass density</source>
        <translation>质量密度</translation>
    </message>
    <message>
        <source>Between [0.001, 0.499]</source>
        <translation>介于 [0.001, 0.499] 之间</translation>
    </message>
    <message>
        <source>Mutual exclusion to &quot;Isotropic elasticity&quot;</source>
        <translation>与“各向同性弹性”互斥</translation>
    </message>
    <message>
        <source>Mutually exclusive to hyper-elastic properties</source>
        <translation>与超弹性属性互斥</translation>
    </message>
    <message>
        <source>Input &quot;Mises&quot;, &quot;Mohr-Coulomb&quot;, or &quot;Drucker-Prager&quot;</source>
        <translation>输入 &quot;Mises&quot;, &quot;Mohr-Coulomb&quot; 或 &quot;Drucker-Prager&quot;</translation>
    </message>
    <message>
        <source>Input &quot;Bilinear&quot;, &quot;Multilinear&quot;, &quot;Swift&quot;, &quot;Ramberg-Osgood&quot;, &quot;Kinematic&quot;, or &quot;Combined&quot;</source>
        <translation>输入 &quot;Bilinear&quot;, &quot;Multilinear&quot;, &quot;Swift&quot;, &quot;Ramberg-Osgood&quot;, &quot;Kinematic&quot; 或 &quot;Combined&quot;</translation>
    </message>
    <message>
        <source>Vector; values are separated by comma</source>
        <translation>向量；数值以逗号分隔</translation>
    </message>
</context>
<context>
    <name>vxMat::PropertyName</name>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>Young&apos;s modulus</source>
        <translation>杨氏模量</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>泊松比</translation>
    </message>
    <message>
        <source>Dynamic viscosity</source>
        <translation>动力粘度</translation>
    </message>
    <message>
        <source>Initial Shear Modulus Mu</source>
        <translation>初始剪切模量 Mu</translation>
    </message>
    <message>
        <source>Incompressibility Parameter D1</source>
        <translation>不可压缩参数 D1</translation>
    </message>
    <message>
        <source>Material Constant C10</source>
        <translation>材料常数 C10</translation>
    </message>
    <message>
        <source>Material Constant C01</source>
        <translation>材料常数 C01</translation>
    </message>
    <message>
        <source>Neo-Hookean</source>
        <translation>Neo-Hookean 模型</translation>
    </message>
    <message>
        <source>Mooney-Rivlin</source>
        <translation>Mooney-Rivlin 模型</translation>
    </message>
    <message>
        <source>Arruda-Boyce</source>
        <translation>Arruda-Boyce 模型</translation>
    </message>
    <message>
        <source>Isotropic elasticity</source>
        <translation>各向同性弹性</translation>
    </message>
    <message>
        <source>Plasticity</source>
        <translation>塑性</translation>
    </message>
    <message>
        <source>Yield type</source>
        <translation>屈服类型</translation>
    </message>
    <message>
        <source>Plastic viscosity</source>
        <translation>塑性粘度</translation>
    </message>
    <message>
        <source>Internal frictional angle</source>
        <translation>内摩擦角</translation>
    </message>
    <message>
        <source>Hardening factor</source>
        <translation>硬化系数</translation>
    </message>
    <message>
        <source>Hardening type</source>
        <translation>硬化类型</translation>
    </message>
    <message>
        <source>Yield stress</source>
        <translation>屈服应力</translation>
    </message>
    <message>
        <source>Plastic strain</source>
        <translation>塑性应变</translation>
    </message>
    <message>
        <source>Initial yield stress</source>
        <translation>初始屈服应力</translation>
    </message>
    <message>
        <source>Visco-elasticity</source>
        <translation>粘弹性</translation>
    </message>
    <message>
        <source>Shear relaxation modulus</source>
        <translation>剪切松弛模量</translation>
    </message>
    <message>
        <source>Relaxation time</source>
        <translation>松弛时间</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>蠕变</translation>
    </message>
    <message>
        <source>Creep Modulus A</source>
        <translation>蠕变模量 A</translation>
    </message>
    <message>
        <source>Creep Modulus N</source>
        <translation>蠕变模量 N</translation>
    </message>
    <message>
        <source>Creep Modulus M</source>
        <translation>蠕变模量 M</translation>
    </message>
    <message>
        <source>Limiting Network Stretch</source>
        <translation>极限网络拉伸</translation>
    </message>
    <message>
        <source>Material Constant C11</source>
        <translation>材料常数 C11</translation>
    </message>
    <message>
        <source>Specific heat</source>
        <translation>比热容</translation>
    </message>
    <message>
        <source>Thermal conductivity</source>
        <translation>导热系数</translation>
    </message>
    <message>
        <source>Electrical conductivity</source>
        <translation>电导率</translation>
    </message>
    <message>
        <source>Relative permittivity</source>
        <translation>相对介电常数</translation>
    </message>
    <message>
        <source>Relative permeability</source>
        <translation>相对磁导率</translation>
    </message>
    <message>
        <source>Speed of sound</source>
        <translation>声速</translation>
    </message>
</context>
<context>
    <name>vxMaterial</name>
    <message>
        <source>The materials module could not register its projects</source>
        <translation>材料模块无法注册其项目</translation>
    </message>
    <message>
        <source>The materials module could not register its user interface</source>
        <translation>材料模块无法注册其用户界面</translation>
    </message>
</context>
<context>
    <name>vxMsg</name>
    <message>
        <source>The request %1 is not known; nothing was done.</source>
        <translation>请求 %1 未知；未执行任何操作。</translation>
    </message>
    <message>
        <source>There is no project &quot;%1&quot;; nothing was done.</source>
        <translation>没有项目“%1”；未执行任何操作。</translation>
    </message>
    <message>
        <source>The request %1 takes one name; nothing was done.</source>
        <translation>请求 %1 需要一个名称；未执行任何操作。</translation>
    </message>
    <message>
        <source>New project &quot;%1&quot;</source>
        <translation>新建项目“%1”</translation>
    </message>
    <message>
        <source>Close project &quot;%1&quot;</source>
        <translation>关闭项目“%1”</translation>
    </message>
    <message>
        <source>Add &quot;%1&quot;</source>
        <translation>添加“%1”</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>删除“%1”</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; has no object &quot;%2&quot;; nothing was done.</source>
        <translation>项目“%1”中没有对象“%2”；未执行任何操作。</translation>
    </message>
    <message>
        <source>The request %1 cannot be registered for the class &quot;%2&quot;: it has another meaning.</source>
        <translation>无法为类“%2”注册请求 %1：它已有其他含义。</translation>
    </message>
    <message>
        <source>A request failed</source>
        <translation>请求失败</translation>
    </message>
    <message>
        <source>An undo or redo failed</source>
        <translation>撤销或重做失败</translation>
    </message>
    <message>
        <source>There is no property &quot;%1&quot;; nothing was changed.</source>
        <translation>没有属性“%1”；未做任何更改。</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is read-only; nothing was changed.</source>
        <translation>属性“%1”是只读的；未做任何更改。</translation>
    </message>
    <message>
        <source>The label must not be empty; nothing was changed.</source>
        <translation>标签不得为空；未做任何更改。</translation>
    </message>
    <message>
        <source>An object failed when its property &quot;%1&quot; was changed</source>
        <translation>更改属性“%1”时对象失败</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; cannot be &quot;%2&quot;; nothing was changed.</source>
        <translation>属性“%1”不能为“%2”；未做任何更改。</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; is being closed already; nothing was done.</source>
        <translation>项目“%1”正在关闭；未执行任何操作。</translation>
    </message>
    <message>
        <source>Change &quot;%1&quot;</source>
        <translation>更改“%1”</translation>
    </message>
    <message>
        <source>Suppress &quot;%1&quot;</source>
        <translation>抑制“%1”</translation>
    </message>
    <message>
        <source>Unsuppress &quot;%1&quot;</source>
        <translation>取消抑制“%1”</translation>
    </message>
    <message>
        <source>Hand over &quot;%1&quot;</source>
        <translation>移交“%1”</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; cannot be handed over</source>
        <translation>无法移交项目“%1”</translation>
    </message>
    <message>
        <source>Requests are refused during undo and redo; nothing was done.</source>
        <translation>撤销或重做期间不接受请求；未执行任何操作。</translation>
    </message>
    <message>
        <source>A listener closed the project &quot;%1&quot; before the request was carried out.</source>
        <translation>在执行请求之前，监听器已关闭项目“%1”。</translation>
    </message>
    <message>
        <source>The name of a project must not be empty; nothing was changed.</source>
        <translation>项目名称不能为空；未做任何更改。</translation>
    </message>
    <message>
        <source>Another open project has the name &quot;%1&quot;; nothing was changed.</source>
        <translation>另一个打开的项目已使用名称“%1”；未做任何更改。</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>重命名“%1”</translation>
    </message>
</context>
<context>
    <name>vxjson::JsonError</name>
    <message>
        <source>&quot;%1&quot; must be a number from 0 to 1</source>
        <translation>“%1”必须是 0 到 1 之间的数字</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nested more than 1000 levels deep</source>
        <translation>“%1”的嵌套超过 1000 层</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a finite number</source>
        <translation>“%1”不是有限数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not UTF-8</source>
        <translation>“%1”不是 UTF-8</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is beyond the range of a double</source>
        <translation>“%1”超出双精度数的范围</translation>
    </message>
    <message>
        <source>an escape for half of a surrogate pair, which is not a character</source>
        <translation>转义表示半个代理对，它不是字符</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; occurs more than once</source>
        <translation>成员“%1”出现多次</translation>
    </message>
    <message>
        <source>there is no value in the text</source>
        <translation>文本中没有值</translation>
    </message>
    <message>
        <source>the escape \u needs four hexadecimal digits</source>
        <translation>转义 \u 需要四位十六进制数字</translation>
    </message>
    <message>
        <source>the closing quote of a text is missing</source>
        <translation>文本缺少结束引号</translation>
    </message>
    <message>
        <source>nested more than 1000 levels deep</source>
        <translation>嵌套超过 1000 层</translation>
    </message>
    <message>
        <source>a comment that does not end</source>
        <translation>未结束的注释</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an escape of JSON</source>
        <translation>“%1”不是 JSON 转义</translation>
    </message>
    <message>
        <source>a control character in a text, which must be written as an escape</source>
        <translation>文本中的控制字符，必须写成转义</translation>
    </message>
    <message>
        <source>the text is longer than 2 GiB</source>
        <translation>文本超过 2 GiB</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>文本不是 UTF-8</translation>
    </message>
    <message>
        <source>a zero byte</source>
        <translation>零字节</translation>
    </message>
    <message>
        <source>an object or an array is needed</source>
        <translation>需要对象或数组</translation>
    </message>
    <message>
        <source>a value is needed here</source>
        <translation>此处需要值</translation>
    </message>
    <message>
        <source>the name of a member, in double quotes, is needed here</source>
        <translation>此处需要双引号中的成员名称</translation>
    </message>
    <message>
        <source>a colon is needed after the name of a member</source>
        <translation>成员名称之后需要冒号</translation>
    </message>
    <message>
        <source>a comma or ] is needed here</source>
        <translation>此处需要逗号或 ]</translation>
    </message>
    <message>
        <source>a comma or } is needed here</source>
        <translation>此处需要逗号或 }</translation>
    </message>
    <message>
        <source>there is more text after the end of the document</source>
        <translation>文档结束后还有文本</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>文本过早结束</translation>
    </message>
    <message>
        <source>a comment, which a file of this kind does not have</source>
        <translation>注释，此类文件中不允许</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number</source>
        <translation>“%1”不是数字</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a JSON value</source>
        <translation>“%1”不是 JSON 值</translation>
    </message>
</context>
</TS>
