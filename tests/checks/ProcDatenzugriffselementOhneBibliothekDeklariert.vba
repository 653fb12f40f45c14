'= Modul Daten
Option Explicit
Private mDb As Database
Public Sub Öffnen(ByVal Quelle As Recordset, Optional Ziel As Database) '! Öffnen "Datenzugriffselement ohne Bibliothek deklariert." '! Öffnen
    Dim db As Database, tdf As TableDef, qdf As QueryDef '! Öffnen '! Öffnen '! Öffnen
    Dim fld As Field, fldNeu As New Field '! Öffnen '! Öffnen
    Dim rs As DAO.Recordset, rsZwei As ADODB.Recordset
    Dim rsDrei As New ADODB.Recordset, dbZwei As New DAO.Database
    Dim fldListe As Fields, rsKlein As Recordset2, Recordset_Alt As Long
    Dim rsVier As _
        Recordset
    Dim rsFünf _
        As Recordset, _ '! Öffnen
        rsSechs As New Recordset '! Öffnen
    ' Dim rsAlt As Recordset
    Rem Dim rsAlt As Recordset
    Debug.Print "As Recordset", "x": Rem As Field
    Debug.Print "'", rs.Name: Dim tdfNeu As New TableDef ' As Field '! Öffnen
    ' Fortgesetzt: _
      As Database
    Static qdfFest As New QueryDef '! Öffnen
    ReDim arr(5) As Field '! Öffnen
    Set fld = New Field
    Dim Was As Field_Name, HasField As Long
End Sub
Private Function Hole() As Recordset '! Hole
End Function
Public Property Get Größe() As Database '! Größe
End Property
Private Sub Form_Load()
    Dim objRecordset As Object, lngField As Long
End Sub
'= Klasse Nur
Public Sub Typen(Feld As Field) '! Typen
    Dim a(1 To 3) As TableDef: Dim b As Database '! Typen '! Typen
End Sub
