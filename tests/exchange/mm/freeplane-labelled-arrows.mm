<map version="freeplane 1.9.0">
<node TEXT="Flow" ID="a">
<node TEXT="From" ID="b"><arrowlink SHAPE="CUBIC_CURVE" DESTINATION="c" SOURCE_LABEL="out" MIDDLE_LABEL="leads to" TARGET_LABEL=""/></node>
<node TEXT="To" ID="c"/>
<node TEXT="Lost" ID="d"><arrowlink DESTINATION="gone"/></node>
</node>
</map>
