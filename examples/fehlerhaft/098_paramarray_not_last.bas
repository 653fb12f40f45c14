Option Explicit

Public Sub Pruefen(ParamArray arrWerte() As Variant, strText As String)
    Debug.Print strText
End Sub
